#include "platform/web/page_loop.h"

#include "platform/web/page.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

namespace platform {

namespace {

std::int64_t Now()
{
    return static_cast<std::int64_t>(SDL_GetTicks64());
}

// In the order of page.js: what a gamepad's buttons are.
constexpr ui::Key kPadKeys[] = {ui::Key::Up,
                                ui::Key::Down,
                                ui::Key::Left,
                                ui::Key::Right,
                                ui::Key::Return,
                                ui::Key::Escape,
                                ui::Key::PreviousCommand,
                                ui::Key::NextCommand,
                                ui::Key::Options,
                                ui::Key::Hint};

// What the page's store answers, as page.js counts it, and the system's word for it.
constexpr int kStoreAnswers[] = {0, ENOSPC, EIO, EROFS};

// SDL marks the end of a batch in its own queue while it is asked for events: that is no event.
int WakeOnEvent(void*, SDL_Event* event)
{
    if (event->type != SDL_POLLSENTINEL) {
        page::WakeIn(0);
    }
    return 1;
}

}  // namespace

PageLoop::PageLoop(const Played& played, CanvasFrame& frame, Painter& painter)
    : desktop_(played.desktop)
    , narrator_(played.narrator)
    , host_(played.host)
    , files_(played.files)
    , frame_(frame)
    , painter_(painter)
    , hands_(desktop_)
    , input_(desktop_, hands_, painter, frame)
    , twin_(desktop_)
    , passed_(Now())
{
    narrator_.SetVoice(&voice_);
    painter_.FetchPictures([](const std::filesystem::path& file) { return page::Fetch(file.string()); });
}

PageLoop::~PageLoop()
{
    narrator_.SetVoice(nullptr);
}

void PageLoop::Start()
{
    SDL_AddEventWatch(WakeOnEvent, nullptr);
    Step();
}

void PageLoop::Show()
{
    desktop_.Refresh();
    if (!frame_.Renewed() && !desktop_.Dirty()) {
        return;
    }
    SDL_Surface* surface = frame_.Surface();
    if (surface == nullptr) {
        return;
    }
    const ui::Rect dirty = desktop_.TakeDirty();
    frame_.Present(painter_.Paint(desktop_, *surface, frame_.View(), frame_.Renewed() ? ui::kSpace : dirty));
}

void PageLoop::TakeEvents()
{
    SDL_Event event{};
    while (!host_.Ended() && SDL_PollEvent(&event) == 1) {
        if (event.type != SDL_QUIT && event.type != SDL_POLLSENTINEL) {
            input_.Handle(event);
            input_.Follow();
        }
    }
}

void PageLoop::AskToBeWoken()
{
    const std::optional<std::int64_t> left = hands_.Patience();
    if (left) {
        page::WakeIn(static_cast<int>(std::max<std::int64_t>(*left - (Now() - passed_), 0)));
    }
}

void PageLoop::Step()
{
    if (ended_) {
        return;
    }
    const std::int64_t now = Now();
    hands_.LetTimePass(now - passed_);
    passed_ = now;
    TakeEvents();
    if (voice_.TakeTrouble()) {
        narrator_.TellNoVoice();
    }
    Show();
    input_.Follow();
    twin_.Tell();
    const bool typing = desktop_.FocusedTextBox() != nullptr;
    if (std::exchange(typing_, typing) != typing) {
        page::Typing(typing);
    }
    if (host_.Ended()) {
        ended_ = true;
        page::Ended();
        return;
    }
    AskToBeWoken();
}

void PageLoop::Resized()
{
    frame_.Renew();
    Step();
}

void PageLoop::FilesCame()
{
    painter_.PicturesCame();
    Resized();
}

void PageLoop::Kept(int answer)
{
    files_.Answered(answer >= 0 && answer < static_cast<int>(std::size(kStoreAnswers)) ? kStoreAnswers[answer]
                                                                                       : EIO);
    Step();
}

void PageLoop::Do(const std::string& what, int control, const std::string& text)
{
    if (what == "key" && control >= 0 && control < static_cast<int>(std::size(kPadKeys))) {
        hands_.Press(kPadKeys[control]);
    } else {
        twin_.Do(what, control, text);
    }
    Step();
}

}  // namespace platform
