// A game controller as another pair of hands, by SDL's mapping: whatever its make, A is where A is.
//
//     Gamepad gamepad(hands);
//     gamepad.Look();              // behind the first frame; plugged in at any time later it is found too
//     gamepad.Handle(event);
//
// Cross and left stick move the focus, A presses, B leaves, the shoulders walk along the menu, Start opens the
// options, Y asks for a hint. What is left is the voice's: the right stick reads, its press tells the keys, the
// left one's switches it on; X repeats, Back tells how things stand, the triggers read all and hush. SDL looks at its controllers again and again as soon as its part for them is
// started, so that is done only when the machine has one: until then a thread sleeps on the folder of devices.
#pragma once

#include "ui/toolkit/hands.h"

#include <SDL2/SDL_events.h>
#include <SDL2/SDL_gamecontroller.h>

#include <array>
#include <map>
#include <memory>
#include <thread>

namespace platform {

class Gamepad {
public:
    explicit Gamepad(ui::Hands& hands) : hands_(hands) {}
    ~Gamepad();
    Gamepad(const Gamepad&) = delete;
    Gamepad& operator=(const Gamepad&) = delete;

    void Look();
    void Start();  // SDL's part for controllers; once
    void Handle(const SDL_Event& event);

private:
    struct Closer {
        void operator()(SDL_GameController* controller) const { SDL_GameControllerClose(controller); }
    };

    void Watch();
    void MoveAxis(Uint8 axis, int value);

    ui::Hands& hands_;
    std::map<SDL_JoystickID, std::unique_ptr<SDL_GameController, Closer>> open_;
    std::array<bool, SDL_CONTROLLER_AXIS_MAX> held_{};  // which are pushed
    bool started_ = false;
    Uint32 appeared_ = 0;  // the event by which the thread tells that a device has come
    int stop_ = -1;        // closed to end the thread
    std::thread watcher_;
};

}  // namespace platform
