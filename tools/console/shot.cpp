#include "console/shot.h"

#include "platform/painter.h"

#include <SDL2/SDL_surface.h>

#include <cstdint>
#include <memory>
#include <stdexcept>

namespace console {

namespace {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};

png::Picture ToPicture(const SDL_Surface& surface)
{
    png::Picture picture{static_cast<std::uint32_t>(surface.w), static_cast<std::uint32_t>(surface.h), {}};
    picture.pixels.reserve(std::size_t{picture.width} * picture.height * 3);
    for (int y = 0; y < surface.h; ++y) {
        const auto* row =
            static_cast<const std::uint8_t*>(surface.pixels) + std::ptrdiff_t{y} * surface.pitch;
        const auto* pixels = reinterpret_cast<const std::uint32_t*>(row);
        for (int x = 0; x < surface.w; ++x) {
            for (const unsigned shift : {16U, 8U, 0U}) {
                picture.pixels.push_back(static_cast<std::uint8_t>(pixels[x] >> shift & 0xFFU));
            }
        }
    }
    return picture;
}

}  // namespace

png::Picture Shoot(const ui::Desktop& desktop, const files::ProgramFolder& folder, int width, int height)
{
    const std::unique_ptr<SDL_Surface, FreeSurface> surface(
        SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888));
    if (!surface) {
        throw std::runtime_error("there is no memory for a picture");
    }
    platform::Painter painter(folder);
    painter.Paint(desktop, *surface, platform::Viewport::Fit(surface->w, surface->h), ui::kSpace);
    return ToPicture(*surface);
}

}  // namespace console
