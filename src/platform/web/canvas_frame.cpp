#include "platform/web/canvas_frame.h"

#include "platform/web/page.h"

namespace platform {

SDL_Surface* CanvasFrame::Surface()
{
    const int width = page::Width();
    const int height = page::Height();
    if (width <= 0 || height <= 0) {
        return nullptr;
    }
    if (!surface_ || surface_->w != width || surface_->h != height) {
        surface_.reset(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888));
        view_ = Viewport::Fit(width, height);
        renewed_ = true;
    }
    return surface_.get();
}

void CanvasFrame::Present(const SDL_Rect& changed)
{
    const bool whole = std::exchange(renewed_, false);
    const SDL_Rect area = whole ? SDL_Rect{0, 0, surface_->w, surface_->h} : changed;
    if (area.w > 0 && area.h > 0) {
        page::Put(surface_->pixels, surface_->pitch, area.x, area.y, area.w, area.h);
    }
}

void CanvasFrame::ToggleFullScreen()
{
    page::ToggleFullScreen();
}

}  // namespace platform
