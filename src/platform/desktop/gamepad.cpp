#include "platform/desktop/gamepad.h"

#include <SDL2/SDL.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <optional>
#include <string>
#include <system_error>

namespace platform {

namespace {

constexpr const char* kDevices = "/dev/input";
constexpr int kPushed = 20000;  // of 32767: a stick counts as pushed ...
constexpr int kLetGo = 12000;   // ... until it is back here, so that a trembling hand moves one step

struct ButtonRow {
    SDL_GameControllerButton button;
    ui::Key key;
};
constexpr ButtonRow kButtons[] = {
    {SDL_CONTROLLER_BUTTON_DPAD_UP, ui::Key::Up},
    {SDL_CONTROLLER_BUTTON_DPAD_DOWN, ui::Key::Down},
    {SDL_CONTROLLER_BUTTON_DPAD_LEFT, ui::Key::Left},
    {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, ui::Key::Right},
    {SDL_CONTROLLER_BUTTON_A, ui::Key::Return},
    {SDL_CONTROLLER_BUTTON_B, ui::Key::Escape},
    {SDL_CONTROLLER_BUTTON_LEFTSHOULDER, ui::Key::PreviousCommand},
    {SDL_CONTROLLER_BUTTON_RIGHTSHOULDER, ui::Key::NextCommand},
    {SDL_CONTROLLER_BUTTON_START, ui::Key::Options},
    {SDL_CONTROLLER_BUTTON_Y, ui::Key::Hint},
    {SDL_CONTROLLER_BUTTON_LEFTSTICK, ui::Key::F2},
    {SDL_CONTROLLER_BUTTON_X, ui::Key::F3},
    {SDL_CONTROLLER_BUTTON_BACK, ui::Key::F5},
    {SDL_CONTROLLER_BUTTON_RIGHTSTICK, ui::Key::F6},
};

// A trigger goes one way only.
struct AxisRow {
    SDL_GameControllerAxis axis;
    std::optional<ui::Key> back;
    ui::Key forth;
};
constexpr AxisRow kAxes[] = {
    {SDL_CONTROLLER_AXIS_LEFTX, ui::Key::Left, ui::Key::Right},
    {SDL_CONTROLLER_AXIS_LEFTY, ui::Key::Up, ui::Key::Down},
    {SDL_CONTROLLER_AXIS_RIGHTX, ui::Key::AltLeft, ui::Key::AltRight},
    {SDL_CONTROLLER_AXIS_RIGHTY, ui::Key::PageUp, ui::Key::PageDown},
    {SDL_CONTROLLER_AXIS_TRIGGERLEFT, std::nullopt, ui::Key::F9},
    {SDL_CONTROLLER_AXIS_TRIGGERRIGHT, std::nullopt, ui::Key::F4},
};

bool HasDevice()
{
    std::error_code error;
    const auto isPad = [](const std::filesystem::directory_entry& entry) {
        return entry.path().filename().string().starts_with("js");
    };
    const std::filesystem::directory_iterator devices(kDevices, error);
    return !error && std::any_of(begin(devices), end(devices), isPad);
}

// Sleeps until a device comes into the folder (true) or the pipe ends (false).
bool AwaitDevice(int folder, int stop)
{
    pollfd sources[] = {{folder, POLLIN, 0}, {stop, POLLIN, 0}};
    while (poll(sources, std::size(sources), -1) > 0 && sources[1].revents == 0) {
        alignas(inotify_event) char news[4096];
        if (read(folder, news, sizeof news) <= 0) {
            return false;
        }
        if (HasDevice()) {
            return true;
        }
    }
    return false;
}

}  // namespace

Gamepad::~Gamepad()
{
    if (watcher_.joinable()) {
        close(stop_);
        watcher_.join();
    }
    open_.clear();
    if (started_) {
        SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
    }
}

void Gamepad::Look()
{
    HasDevice() ? Start() : Watch();
}

void Gamepad::Watch()
{
    const int folder = inotify_init1(IN_CLOEXEC);
    int ends[2] = {-1, -1};
    if (folder < 0 || inotify_add_watch(folder, kDevices, IN_CREATE | IN_ATTRIB) < 0 ||
        pipe2(ends, O_CLOEXEC) != 0) {
        close(folder);
        return;
    }
    stop_ = ends[1];
    appeared_ = SDL_RegisterEvents(1);
    watcher_ = std::thread([folder, stop = ends[0], type = appeared_] {
        if (AwaitDevice(folder, stop)) {
            SDL_Event event{};
            event.type = type;
            SDL_PushEvent(&event);
        }
        close(folder);
        close(stop);
    });
}

void Gamepad::Start()
{
    if (!started_) {
        started_ = SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0;
    }
}

// A stick is a cross, a trigger a button: a step when it is pushed, the next one when it has been let go.
void Gamepad::MoveAxis(Uint8 axis, int value)
{
    const auto* const row = std::find_if(std::begin(kAxes), std::end(kAxes),
                                         [axis](const AxisRow& each) { return each.axis == axis; });
    if (row == std::end(kAxes)) {
        return;
    }
    bool& held = held_.at(axis);
    if (held && std::abs(value) < kLetGo) {
        held = false;
    } else if (!held && std::abs(value) > kPushed) {
        held = true;
        if (const std::optional<ui::Key> key = value < 0 ? row->back : row->forth) {
            hands_.Press(*key);
        }
    }
}

void Gamepad::Handle(const SDL_Event& event)
{
    if (appeared_ != 0 && event.type == appeared_) {
        Start();
    } else if (event.type == SDL_CONTROLLERDEVICEADDED) {
        if (SDL_GameController* controller = SDL_GameControllerOpen(event.cdevice.which)) {
            const SDL_JoystickID id = SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(controller));
            open_[id].reset(controller);
        }
    } else if (event.type == SDL_CONTROLLERDEVICEREMOVED) {
        open_.erase(event.cdevice.which);
        held_ = {};
    } else if (event.type == SDL_CONTROLLERAXISMOTION) {
        MoveAxis(event.caxis.axis, event.caxis.value);
    } else if (event.type == SDL_CONTROLLERBUTTONDOWN) {
        const auto* const row =
            std::find_if(std::begin(kButtons), std::end(kButtons),
                         [&](const ButtonRow& each) { return each.button == event.cbutton.button; });
        if (row != std::end(kButtons)) {
            hands_.Press(row->key);
        }
    }
}

}  // namespace platform
