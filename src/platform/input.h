// Turns what SDL reports into what the desktop understands: pointer, keys, typed and composed text.
#pragma once

#include "platform/frame.h"
#include "platform/painter.h"
#include "ui/toolkit/desktop.h"
#include "ui/toolkit/hands.h"

#include <SDL2/SDL_events.h>
#include <SDL2/SDL_mouse.h>

#include <map>
#include <memory>
#include <optional>

namespace platform {

class Input {
public:
    Input(ui::Desktop& desktop, ui::Hands& hands, Painter& painter, Frame& frame);

    void Handle(const SDL_Event& event);
    // What goes with the focus and the pointer: input methods run only while a text box has the focus, and show
    // their list beside its caret; the pointer shows what can be pressed under it.
    void Follow();

private:
    void FollowFocus();
    void FollowPointer();
    void HandleKey(const SDL_KeyboardEvent& event);
    void HandleMotion(int x, int y);
    void HandleWindow(const SDL_WindowEvent& event);
    void HandleButton(const SDL_MouseButtonEvent& event);

    ui::Desktop& desktop_;
    ui::Hands& hands_;
    Painter& painter_;
    Frame& frame_;
    const ui::Desktop::CaretAt caretAt_;
    bool typing_ = false;
    struct CursorDeleter {
        void operator()(SDL_Cursor* cursor) const { SDL_FreeCursor(cursor); }
    };
    std::map<ui::PointerShape, std::unique_ptr<SDL_Cursor, CursorDeleter>> cursors_;
    std::optional<ui::Point> pointer_;  // while it is over the picture
    ui::PointerShape shape_ = ui::PointerShape::Arrow;
    bool pressed_ = false;  // a press began in the picture
    ui::Rect caret_;        // as last told to the input method
};

}  // namespace platform
