// The scene behind a screen, put together once and copied from then on.
//
//     if (backdrop.Follow(form.scene(), view, surface.w, surface.h, pictures)) { ... paint everything ... }
//     canvas.Texture / SDL_BlitSurface(backdrop.Composed(), ...)
//
// It is as large as the window: where that is wider or taller than the picture space the scene goes on.
#pragma once

#include "platform/pictures.h"
#include "platform/viewport.h"
#include "ui/toolkit/scene.h"

namespace platform {

class Backdrop {
public:
    // Puts the pieces together again when they or the window have changed, and tells whether they had. An
    // empty scene frees the memory.
    bool Follow(ui::Scene scene, const Viewport& view, int width, int height, Pictures& pictures);

    SDL_Surface* Composed() const { return composed_.get(); }  // null without a scene

private:
    ui::Scene scene_;
    Viewport view_;
    PictureSurface composed_;
};

}  // namespace platform
