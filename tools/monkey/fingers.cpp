#include "monkey/fingers.h"

#include "monkey/damage.h"
#include "platform/viewport.h"

#include <SDL2/SDL.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <string_view>

namespace monkey {

namespace {

SDL_Window* TheWindow()
{
    return SDL_GetWindowFromID(1);
}

platform::Viewport View()
{
    int width = ui::kSpaceWidth;
    int height = ui::kSpaceHeight;
    SDL_GetWindowSize(TheWindow(), &width, &height);
    return platform::Viewport::Fit(width, height);
}

std::string At(const platform::Viewport& view, const ui::Rect& rect)
{
    return std::to_string(view.X(rect.left + rect.width / 2.0)) + " " +
           std::to_string(view.Y(rect.top + rect.height / 2.0));
}

// What a press would do something to, on the screens that take it.
std::vector<ui::Rect> WhatAnswers(const ui::Desktop& desktop)
{
    std::vector<ui::Rect> places;
    for (const ui::Form* form : desktop.Shown()) {
        if (!desktop.TakesInput(*form)) {
            continue;
        }
        if (form->onClick) {
            places.push_back(form->Place());
        }
        for (const ui::Control* control : form->Controls()) {
            const bool answers = control->onClick || control->GetKind() == ui::Control::Kind::TextBox;
            if (answers && control->Now().visible && control->Now().enabled) {
                places.push_back(control->Place());
            }
        }
    }
    return places;
}

// Events ------------------------------------------------------------------------------------------------------

void Push(SDL_Event event)
{
    SDL_PushEvent(&event);
}

void PushMotion(int x, int y)
{
    SDL_Event event{};
    event.type = SDL_MOUSEMOTION;
    event.motion.x = x;
    event.motion.y = y;
    Push(event);
}

void PushButton(bool down, int x, int y, int clicks)
{
    SDL_Event event{};
    event.type = down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
    event.button.button = SDL_BUTTON_LEFT;
    event.button.state = down ? SDL_PRESSED : SDL_RELEASED;
    event.button.clicks = static_cast<Uint8>(clicks);
    event.button.x = x;
    event.button.y = y;
    Push(event);
}

void PushKey(int modifiers, const std::string& name)
{
    for (const bool down : {true, false}) {
        SDL_Event event{};
        event.type = down ? SDL_KEYDOWN : SDL_KEYUP;
        event.key.state = down ? SDL_PRESSED : SDL_RELEASED;
        event.key.keysym.sym = SDL_GetKeyFromName(name.c_str());
        event.key.keysym.scancode = SDL_GetScancodeFromKey(event.key.keysym.sym);
        event.key.keysym.mod = static_cast<Uint16>(modifiers);
        Push(event);
    }
}

void PushText(bool composed, const std::string& text)
{
    SDL_Event event{};
    event.type = composed ? SDL_TEXTEDITING : SDL_TEXTINPUT;
    SDL_strlcpy(composed ? event.edit.text : event.text.text, text.c_str(), SDL_TEXTINPUTEVENT_TEXT_SIZE);
    Push(event);
}

void PushWindow(SDL_WindowEventID what)
{
    SDL_Event event{};
    event.type = SDL_WINDOWEVENT;
    event.window.windowID = 1;
    event.window.event = static_cast<Uint8>(what);
    Push(event);
}

void PushPad(int button)
{
    SDL_Event event{};
    event.type = SDL_CONTROLLERBUTTONDOWN;
    event.cbutton.button = static_cast<Uint8>(button);
    event.cbutton.state = SDL_PRESSED;
    Push(event);
}

void PushAxis(int axis, int value)
{
    SDL_Event event{};
    event.type = SDL_CONTROLLERAXISMOTION;
    event.caxis.axis = static_cast<Uint8>(axis);
    event.caxis.value = static_cast<Sint16>(value);
    Push(event);
}

// Lines -------------------------------------------------------------------------------------------------------

std::string Rest(std::istringstream& words)
{
    std::string rest;
    std::getline(words >> std::ws, rest);
    return rest;
}

bool CarryOutPointer(const std::string& what, std::istringstream& words)
{
    int x = 0;
    int y = 0;
    if (what == "tap") {
        words >> x >> y;
        PushMotion(x, y);
        PushButton(true, x, y, 1);
        PushButton(false, x, y, 1);
    } else if (what == "drag") {
        int toX = 0;
        int toY = 0;
        int clicks = 1;
        words >> x >> y >> toX >> toY >> clicks;
        PushButton(true, x, y, clicks);
        PushMotion(toX, toY);
        PushButton(false, toX, toY, clicks);
    } else if (what == "move") {
        words >> x >> y;
        PushMotion(x, y);
    }
    return what == "tap" || what == "drag" || what == "move";
}

bool CarryOutWindow(const std::string& what, std::istringstream& words)
{
    constexpr std::array kTold{std::pair{"leave", SDL_WINDOWEVENT_LEAVE},
                               std::pair{"expose", SDL_WINDOWEVENT_EXPOSED},
                               std::pair{"look-away", SDL_WINDOWEVENT_FOCUS_LOST},
                               std::pair{"look-back", SDL_WINDOWEVENT_FOCUS_GAINED}};
    for (const auto& [name, event] : kTold) {
        if (what == name) {
            PushWindow(event);
            return true;
        }
    }
    if (what == "size") {
        int width = 0;
        int height = 0;
        words >> width >> height;
        SDL_SetWindowSize(TheWindow(), width, height);
    } else if (what == "hide") {
        SDL_HideWindow(TheWindow());
    } else if (what == "show") {
        SDL_ShowWindow(TheWindow());
    } else if (what == "close") {
        SDL_Event event{};
        event.type = SDL_QUIT;
        Push(event);
    }
    return what == "size" || what == "hide" || what == "show" || what == "close";
}

}  // namespace

void CarryOut(const std::string& line, Game& game, const std::filesystem::path& folder)
{
    std::istringstream words(line);
    std::string what;
    words >> what;
    int number = 0;
    if (CarryOutPointer(what, words) || CarryOutWindow(what, words)) {
        // done
    } else if (what == "key") {
        words >> number;
        PushKey(number, Rest(words));
    } else if (what == "text" || what == "compose") {
        PushText(what == "compose", Rest(words));
    } else if (what == "pad") {
        words >> number;
        PushPad(number);
    } else if (what == "axis") {
        int value = 0;
        words >> number >> value;
        PushAxis(number, value);
    } else if (what == "wait") {
        words >> number;
        game.GetDesktop().Advance(number);
    } else if (what == "damage") {
        std::string file;
        std::uint64_t seed = 0;
        words >> file >> seed;
        Damage(folder / file, seed);
    }
    SDL_Event wake{};
    wake.type = SDL_USEREVENT;
    Push(wake);  // also where nothing was put into the queue
}

// Fingers -----------------------------------------------------------------------------------------------------

std::size_t Fingers::Pick(std::size_t count)
{
    return static_cast<std::size_t>(dice_.Draw(static_cast<double>(count), 0));
}

std::string Fingers::Next(Game& game)
{
    struct Habit {
        std::size_t weight;
        std::string (Fingers::*line)(Game&);
    };
    // clang-format off
    static constexpr std::array kHabits{
        Habit{520, &Fingers::OnWhatAnswers}, Habit{160, &Fingers::Wait}, Habit{140, &Fingers::Key},
        Habit{ 50, &Fingers::Anywhere},      Habit{ 40, &Fingers::Text}, Habit{ 30, &Fingers::Move},
        Habit{ 25, &Fingers::Window},        Habit{ 20, &Fingers::Pad},  Habit{ 15, &Fingers::Drag},
        Habit{  6, &Fingers::Spoil},
    };
    // clang-format on
    std::size_t sum = 0;
    for (const Habit& habit : kHabits) {
        sum += habit.weight;
    }
    std::size_t left = Pick(sum);
    const auto* chosen = kHabits.data();
    for (; left >= chosen->weight; ++chosen) {
        left -= chosen->weight;
    }
    return (this->*chosen->line)(game);
}

std::string Fingers::OnWhatAnswers(Game& game)
{
    const std::vector<ui::Rect> places = WhatAnswers(game.GetDesktop());
    return places.empty() ? Wait(game) : "tap " + At(View(), OneOf(places));
}

// Also in the bars beside the picture.
std::string Fingers::Anywhere(Game& game)
{
    std::string line = Move(game);
    return "tap" + line.substr(line.find(' '));
}

std::string Fingers::Move(Game& /*game*/)
{
    constexpr std::size_t kBeyond = 1000;
    return "move " + std::to_string(Pick(kBeyond)) + " " + std::to_string(Pick(kBeyond));
}

std::string Fingers::Drag(Game& game)
{
    const std::string from = Move(game);
    const std::string to = Move(game);
    return "drag" + from.substr(from.find(' ')) + to.substr(to.find(' ')) + " " + std::to_string(1 + Pick(3));
}

std::string Fingers::Key(Game& /*game*/)
{
    constexpr auto kNames = std::to_array<std::string_view>(
        {"Return",   "Return", "Return", "Escape", "Escape",    "Tab",    "Tab",  "Space", "Up",
         "Down",     "Left",   "Right",  "Home",   "End",       "Delete", "1",    "2",     "3",
         "4",        "5",      "6",      "F1",     "Backspace", "F2",     "F3",   "F4",    "F5",
         "F6",       "F7",     "F8",     "F9",     "F11",       "PageUp", "A",    "C",     "X",
         "PageDown", "V",      "Insert", "Q",      "Keypad 5",  "ö",      "Menu", "M",     "P"});
    constexpr std::array kModifiers{0, 0, 0, 0, 0, int{KMOD_LSHIFT}, int{KMOD_LCTRL}, int{KMOD_LALT}};
    const int modifiers = OneOf(kModifiers);
    return "key " + std::to_string(modifiers) + " " + std::string(OneOf(kNames));
}

std::string Fingers::Text(Game& /*game*/)
{
    constexpr auto kTexts = std::to_array<std::string_view>(
        {"a", "Ada", "5", "-2000000", "99999999999999999999", "e\u0301\u200d\u0301", "\u202e\u05d0",
         "\U0001f451", "\"a\",", "\xff\xfe", "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"});
    const std::string_view what = Pick(5) == 0 ? "compose " : "text ";
    return std::string(what) + std::string(OneOf(kTexts));
}

std::string Fingers::Wait(Game& /*game*/)
{
    constexpr std::array kLengths{1, 40, 700, 3000, 6000};
    return "wait " + std::to_string(OneOf(kLengths));
}

std::string Fingers::Window(Game& /*game*/)
{
    constexpr auto kLines = std::to_array<std::string_view>(
        {"size 800 600", "size 320 240", "size 1280 700", "size 1 1", "size 400 900", "size 1600 240",
         "leave", "expose", "look-away", "look-back", "look-back", "hide", "show", "show", "key 0 F11",
         "key 256 Return", "close"});
    return std::string(OneOf(kLines));
}

std::string Fingers::Pad(Game& /*game*/)
{
    if (Pick(3) != 0) {
        return "pad " + std::to_string(Pick(SDL_CONTROLLER_BUTTON_MAX + 1));
    }
    constexpr std::array kValues{-32768, -20000, 0, 0, 9000, 32767};
    return "axis " + std::to_string(Pick(SDL_CONTROLLER_AXIS_MAX)) + " " + std::to_string(OneOf(kValues));
}

std::string Fingers::Spoil(Game& /*game*/)
{
    return "damage " + std::string(OneOf(WrittenFiles())) + " " + std::to_string(Pick(1'000'000));
}

}  // namespace monkey
