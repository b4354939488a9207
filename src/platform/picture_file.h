// Reads one picture file, BMP or PNG, into a surface of 32 bits.
//
//     PictureSurface picture = ReadPicture(folder.Path("images/title.bmp"));
//     if (!picture) { ... SDL_GetError() ... }
//
// PNG is read by libpng, which the type faces need anyway: it costs no start anything.
#pragma once

#include <SDL2/SDL_surface.h>

#include <filesystem>
#include <memory>
#include <optional>

namespace platform {

struct SurfaceDeleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using PictureSurface = std::unique_ptr<SDL_Surface, SurfaceDeleter>;

struct PictureSize {
    int width = 0;
    int height = 0;
};

// What the file's head says; none when it is neither BMP nor PNG, or larger than any picture of ours by far.
std::optional<PictureSize> ReadPictureSize(const std::filesystem::path& file);

// With opacity (ARGB8888) where the file has it, else RGB888. Null, with SDL's error set, when there is no
// such picture.
PictureSurface ReadPicture(const std::filesystem::path& file);

}  // namespace platform
