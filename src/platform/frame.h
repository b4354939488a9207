// What the picture is shown in, as the player's input sees it: the window of a desktop, the canvas of a page.
#pragma once

#include "platform/viewport.h"

namespace platform {

class Frame {
public:
    virtual ~Frame() = default;

    // Where the picture lies, in the coordinates of the pointer's events.
    virtual Viewport View() const = 0;
    // What is shown is lost or of the wrong size: the next frame must be painted wholly.
    virtual void Renew() = 0;
    virtual void ToggleFullScreen() = 0;
    virtual void FocusLost() {}
    virtual void FocusGained() {}
};

}  // namespace platform
