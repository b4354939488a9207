// Waits, hands on what happens, lets the desktop's time pass, and paints what changed.
//
// Nothing is polled: the loop sleeps until the player does something, a timer of the desktop falls due or
// the sound device may be closed. With nothing armed it sleeps for ever, and a frame is painted only when
// the desktop says that something changed.
#pragma once

#include "platform/desktop/audio.h"
#include "platform/desktop/gamepad.h"
#include "platform/desktop/narration.h"
#include "platform/desktop/sdl_host.h"
#include "platform/desktop/window.h"
#include "platform/input.h"
#include "platform/painter.h"
#include "ui/toolkit/desktop.h"
#include "ui/toolkit/hands.h"

#include <cstdint>

namespace platform {

class EventLoop {
public:
    EventLoop(ui::Desktop& desktop, SdlHost& host, Window& window, Painter& painter, Audio& audio,
              Narration* narration = nullptr);

    // Paints what changed since the last time.
    void Show();
    // Until the game or the player ends the program.
    void Run();

private:
    void HandleAll(SDL_Event& event);
    bool Speaking() const;
    void LetTimePass(bool held);
    int Patience() const;  // milliseconds to the next thing that is due; -1 when nothing is

    ui::Desktop& desktop_;
    SdlHost& host_;
    Window& window_;
    Painter& painter_;
    Audio& audio_;
    Narration* narration_;
    ui::Hands hands_;
    Input input_;
    Gamepad gamepad_{hands_};
    std::int64_t passed_ = 0;  // how much of SDL's time the desktop has seen
};

}  // namespace platform
