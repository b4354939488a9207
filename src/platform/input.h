// Turns what SDL reports into what the desktop understands: pointer, keys, typed and composed text.
#pragma once

#include "platform/painter.h"
#include "platform/window.h"
#include "ui/toolkit/desktop.h"
#include "ui/toolkit/hands.h"

#include <SDL2/SDL_events.h>

namespace platform {

class Input {
public:
    Input(ui::Desktop& desktop, Painter& painter, Window& window);

    void Handle(const SDL_Event& event);
    // Input methods run only while a text box has the focus, and show their list beside its caret.
    void FollowFocus();

private:
    void HandleKey(const SDL_KeyboardEvent& event);
    void HandleMotion(int x, int y);
    void HandleButton(const SDL_MouseButtonEvent& event);

    ui::Desktop& desktop_;
    ui::Hands hands_{desktop_};
    Painter& painter_;
    Window& window_;
    const ui::Desktop::CaretAt caretAt_;
    bool typing_ = false;
    bool pressed_ = false;  // a press began in the picture
    ui::Rect caret_;        // as last told to the input method
};

}  // namespace platform
