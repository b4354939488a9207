// A surface to paint a screen on, and its pixels.
#pragma once

#include <SDL2/SDL_surface.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace test {

struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using Surface = std::unique_ptr<SDL_Surface, SurfaceDeleter>;

inline Surface MakeSurface(int width, int height)
{
    return Surface(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_RGB888));
}

// As 0xRRGGBB.
inline std::uint32_t PixelAt(const SDL_Surface& surface, int x, int y)
{
    const auto* row =
        static_cast<const std::uint8_t*>(surface.pixels) + static_cast<std::ptrdiff_t>(y) * surface.pitch;
    return reinterpret_cast<const std::uint32_t*>(row)[x] & 0xFFFFFFU;
}

}  // namespace test
