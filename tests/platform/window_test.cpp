#include "platform/desktop/event_loop.h"
#include "platform/desktop/gamepad.h"
#include "platform/desktop/guard.h"
#include "platform/desktop/signals.h"
#include "platform/desktop/viewer.h"
#include "platform/desktop/window.h"
#include "platform/input.h"

#include "platform/sheet.h"

#include <SDL2/SDL.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace {

using ui::Key;

// SDL's dummy driver has windows and surfaces, but no display.
class WindowTest : public testing::Test {
protected:
    WindowTest()
    {
        setenv("SDL_VIDEODRIVER", "dummy", 1);
        unsetenv("DISPLAY");
        SDL_Init(SDL_INIT_VIDEO);
        guard_.emplace();
        window_.emplace(*guard_);
        input_.emplace(desktop_, hands_, painter_, *window_);
        paper_.Show();
        window_->Surface();
    }
    ~WindowTest() override
    {
        input_.reset();
        window_.reset();
        SDL_Quit();
    }

    void Button(Uint32 type, int x, int y, int clicks = 1)
    {
        SDL_Event event{};
        event.type = type;
        event.button.button = SDL_BUTTON_LEFT;
        event.button.state = type == SDL_MOUSEBUTTONDOWN ? SDL_PRESSED : SDL_RELEASED;
        event.button.clicks = static_cast<Uint8>(clicks);
        event.button.x = x;
        event.button.y = y;
        input_->Handle(event);
    }
    void Press(SDL_Keycode key, int modifiers = KMOD_NONE, bool repeat = false)
    {
        SDL_Event event{};
        event.type = SDL_KEYDOWN;
        event.key.keysym.sym = key;
        event.key.keysym.scancode = SDL_GetScancodeFromKey(key);
        event.key.keysym.mod = static_cast<Uint16>(modifiers);
        event.key.repeat = repeat ? 1 : 0;
        input_->Handle(event);
        input_->Follow();
    }
    void Text(const char* text)
    {
        SDL_Event event{};
        event.type = SDL_TEXTINPUT;
        SDL_strlcpy(event.text.text, text, sizeof event.text.text);
        input_->Handle(event);
    }

    ui::Desktop desktop_;
    ui::Hands hands_{desktop_};
    test::PaperScreen paper_{desktop_};
    files::ProgramFolder assets_{test::Assets()};
    platform::Painter painter_{assets_};
    std::optional<platform::Guard> guard_;
    std::optional<platform::Window> window_;
    std::optional<platform::Input> input_;
};

TEST_F(WindowTest, ClicksMapToThePictureAndThoseInTheBarsAreDropped)
{
    int clicks = 0;
    int elsewhere = 0;
    paper_.button.onClick = [&] { ++clicks; };
    paper_.onClick = [&] { ++elsewhere; };
    SDL_SetWindowSize(SDL_GetWindowFromID(1), 1200, 600);  // bars of 200 at the sides
    SDL_PumpEvents();
    window_->Renew();
    ASSERT_NE(window_->Surface(), nullptr);
    ASSERT_EQ(window_->View().place.x, 200);

    Button(SDL_MOUSEBUTTONDOWN, 300, 300);
    Button(SDL_MOUSEBUTTONUP, 300, 300);
    EXPECT_EQ(clicks, 1);
    Button(SDL_MOUSEBUTTONDOWN, 100, 300);  // in the bar
    Button(SDL_MOUSEBUTTONUP, 300, 300);
    EXPECT_EQ(clicks, 1);
    Button(SDL_MOUSEBUTTONDOWN, 300, 300);  // dragged out of the picture
    Button(SDL_MOUSEBUTTONUP, 100, 300);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(elsewhere, 0);
    EXPECT_EQ(desktop_.Pressed(), nullptr);
}

TEST_F(WindowTest, KeysAreCharactersOnlyInATextBox)
{
    std::string used;
    desktop_.onKey = [&used](ui::Key key) {
        used += std::to_string(static_cast<int>(key) - static_cast<int>(ui::Key::Digit1) + 1);
        return true;
    };
    EXPECT_FALSE(SDL_IsTextInputActive());
    Press(SDLK_1);
    Press(SDLK_KP_3);
    Press(SDLK_1, KMOD_NONE, true);  // held down
    EXPECT_EQ(used, "13");

    desktop_.SetFocus(&paper_.box);
    input_->Follow();
    EXPECT_TRUE(SDL_IsTextInputActive());
    Press(SDLK_2);
    Text("2");
    Press(SDLK_SPACE);
    Text(" Ñ");
    EXPECT_EQ(used, "13");
    EXPECT_EQ(paper_.box.Text(), "2 Ñ");
    Press(SDLK_a, KMOD_CTRL);
    Press(SDLK_x, KMOD_CTRL);
    EXPECT_EQ(paper_.box.Text(), "");
    Press(SDLK_v, KMOD_CTRL);
    Press(SDLK_INSERT, KMOD_SHIFT);
    EXPECT_EQ(paper_.box.Text(), "2 Ñ2 Ñ");
    Press(SDLK_a, KMOD_RALT | KMOD_LCTRL);  // a third character of some layouts
    Text("ą");
    EXPECT_EQ(paper_.box.Text(), "2 Ñ2 Ñą");
    Press(SDLK_TAB);
    EXPECT_FALSE(SDL_IsTextInputActive());
}

// SDL's virtual controller, which is mapped as a real one.
TEST_F(WindowTest, AGamepadIsAnotherPairOfHands)
{
    SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS,
                "1");  // the dummy driver gives no window the focus
    std::vector<std::string> story;
    desktop_.onAttend = [&story](const ui::Control*, bool asked) {
        if (asked) {
            story.push_back("key " + std::to_string(static_cast<int>(Key::Hint)));
        }
    };
    desktop_.onKey = [&story](Key key) {
        story.push_back("key " + std::to_string(static_cast<int>(key)));
        return true;
    };
    paper_.button.onClick = [&story] { story.emplace_back("pressed"); };
    platform::Gamepad gamepad(hands_);
    gamepad.Start();
    const int device = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX,
                                                 SDL_CONTROLLER_BUTTON_MAX, 0);
    ASSERT_GE(device, 0) << SDL_GetError();
    SDL_Joystick* pad = SDL_JoystickOpen(device);
    const auto handle = [&gamepad] {
        SDL_JoystickUpdate();
        for (SDL_Event event{}; SDL_PollEvent(&event) == 1;) {
            gamepad.Handle(event);
        }
    };
    const auto press = [&](int button) {
        for (const Uint8 down : {Uint8{1}, Uint8{0}}) {
            SDL_JoystickSetVirtualButton(pad, button, down);
            handle();
        }
    };
    const auto push = [&](int axis, Sint16 value) {
        SDL_JoystickSetVirtualAxis(pad, axis, value);
        handle();
    };
    handle();
    desktop_.SetFocus(&paper_.button);
    press(SDL_CONTROLLER_BUTTON_A);
    EXPECT_THAT(story, testing::ElementsAre("pressed"));
    const ui::Control* before = desktop_.Focused();
    press(SDL_CONTROLLER_BUTTON_DPAD_UP);
    const ui::Control* above = desktop_.Focused();
    EXPECT_NE(above, before);
    desktop_.SetFocus(&paper_.button);
    push(SDL_CONTROLLER_AXIS_LEFTY, -30000);
    push(SDL_CONTROLLER_AXIS_LEFTY, -15000);  // a trembling hand
    push(SDL_CONTROLLER_AXIS_LEFTY, -30000);
    EXPECT_EQ(desktop_.Focused(), above) << "one push, one step";
    story.clear();
    for (const auto button :
         {SDL_CONTROLLER_BUTTON_B, SDL_CONTROLLER_BUTTON_LEFTSHOULDER, SDL_CONTROLLER_BUTTON_RIGHTSHOULDER,
          SDL_CONTROLLER_BUTTON_START, SDL_CONTROLLER_BUTTON_Y, SDL_CONTROLLER_BUTTON_LEFTSTICK,
          SDL_CONTROLLER_BUTTON_X, SDL_CONTROLLER_BUTTON_BACK, SDL_CONTROLLER_BUTTON_RIGHTSTICK}) {
        press(button);
    }
    for (const auto axis : {SDL_CONTROLLER_AXIS_RIGHTX, SDL_CONTROLLER_AXIS_RIGHTY}) {
        for (const Sint16 value : std::initializer_list<Sint16>{-30000, 0, 30000, 0}) {
            push(axis, value);
        }
    }
    for (const auto axis : {SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_CONTROLLER_AXIS_TRIGGERRIGHT}) {
        for (const Sint16 value : std::initializer_list<Sint16>{-32768, 30000, -32768}) {
            push(axis, value);
        }
    }
    std::vector<std::string> wanted;
    for (const Key key :
         {Key::Escape, Key::PreviousCommand, Key::NextCommand, Key::Options, Key::Hint, Key::F2, Key::F3,
          Key::F5, Key::F6, Key::AltLeft, Key::AltRight, Key::PageUp, Key::PageDown, Key::F9, Key::F4}) {
        wanted.push_back("key " + std::to_string(static_cast<int>(key)));
    }
    EXPECT_EQ(story, wanted);
    SDL_JoystickClose(pad);
    SDL_JoystickDetachVirtual(device);
    handle();
}

TEST_F(WindowTest, HoldingReturnPressesOnce)
{
    int clicks = 0;
    paper_.button.onClick = [&] { ++clicks; };
    desktop_.SetFocus(&paper_.button);
    Press(SDLK_RETURN);
    Press(SDLK_RETURN, KMOD_NONE, true);
    EXPECT_EQ(clicks, 1);
    Press(SDLK_RETURN, KMOD_ALT);  // full screen, not the button
    EXPECT_EQ(clicks, 1);
}

TEST_F(WindowTest, TheLoopFiresTimersShowsTheFrameAndEnds)
{
    ui::Timer timer(paper_, "timer");
    platform::SdlHost host;
    platform::Audio audio(assets_);
    timer.onTimer = [&] {
        paper_.value.SetText("1");
        timer.SetInterval(400);
        timer.onTimer = [&] { host.EndProgram(); };
    };
    timer.SetInterval(20);
    const Uint64 start = SDL_GetTicks64();
    platform::EventLoop(desktop_, host, *window_, painter_, audio).Run();
    const auto passed = static_cast<std::int64_t>(SDL_GetTicks64() - start);
    EXPECT_GE(passed, 420);
    EXPECT_GE(desktop_.Now(), passed - 20);  // the desktop's time is the player's
    EXPECT_FALSE(desktop_.Dirty());
    const SDL_Surface* surface = window_->Surface();
    EXPECT_EQ(test::PixelAt(*surface, 23, 430), 0xE2D2A6U);  // the foot strip
}

TEST(Signals, CallBackInTheGame)
{
    std::atomic<int> calls = 0;
    {
        const platform::Signals signals([&calls] { ++calls; });
        std::raise(SIGTERM);
        for (int i = 0; i < 500 && calls == 0; ++i) {
            SDL_Delay(2);
        }
    }
    EXPECT_EQ(calls, 1);
}

TEST(FileUrl, EncodesWhatIsNoPlainCharacter)
{
    struct Case {
        const char* file;
        const char* url;
    };
    const Case cases[] = {
        {"/usr/share/quenvale/Data/Manual.htm", "file:///usr/share/quenvale/Data/Manual.htm"},
        {"/home/Ada B/50% #1?/Manual.htm", "file:///home/Ada%20B/50%25%20%231%3F/Manual.htm"},
        {"/home/Ñandú/Manual.htm", "file:///home/%C3%91and%C3%BA/Manual.htm"},
        {"/a/./b/../Manual.htm", "file:///a/Manual.htm"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(platform::FileUrl(c.file), c.url);
    }
    EXPECT_EQ(platform::FileUrl("Manual.htm").rfind("file:///", 0), 0U);
}

}  // namespace
