#include "platform/backdrop.h"

#include <utility>

namespace platform {

bool Backdrop::Follow(ui::Scene scene, const Viewport& view, int width, int height, Pictures& pictures)
{
    const bool fits = composed_ && composed_->w == width && composed_->h == height && view_ == view;
    if (scene == scene_ && (fits || scene.empty())) {
        return false;
    }
    scene_ = std::move(scene);
    view_ = view;
    if (scene_.empty()) {
        composed_.reset();
        return true;
    }
    if (!fits) {
        composed_.reset();  // before the new one, so that the two are never held at once
        composed_.reset(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888));
    }
    if (!composed_) {
        return true;
    }
    SDL_SetSurfaceBlendMode(composed_.get(), SDL_BLENDMODE_NONE);
    SDL_FillRect(composed_.get(), nullptr, 0);
    const SDL_Rect whole{0, 0, width, height};
    for (const ui::ScenePiece& piece : scene_) {
        SDL_Rect place = view.Snap(piece.place);
        if (SDL_HasIntersection(&place, &whole) == SDL_FALSE) {
            continue;
        }
        if (const PictureSurface picture = pictures.Load(piece.picture, place.w, place.h)) {
            SDL_BlitSurface(picture.get(), nullptr, composed_.get(), &place);
        }
    }
    return true;
}

}  // namespace platform
