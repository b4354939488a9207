// The page's canvas as the game's frame: a surface of our own in the device's pixels, of which only what changed is
// handed to the canvas.
#pragma once

#include "platform/frame.h"
#include "platform/picture_file.h"

#include <utility>

namespace platform {

class CanvasFrame final : public Frame {
public:
    // 32 bits a pixel, of the canvas's present size; null while the page gives it none.
    SDL_Surface* Surface();
    bool Renewed() const { return renewed_; }
    void Present(const SDL_Rect& changed);

    Viewport View() const override { return view_; }
    void Renew() override { renewed_ = true; }
    void ToggleFullScreen() override;

private:
    PictureSurface surface_;
    Viewport view_;
    bool renewed_ = true;
};

}  // namespace platform
