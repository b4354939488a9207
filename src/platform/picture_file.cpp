#include "platform/picture_file.h"

#include "files/whole_file.h"

#include <SDL2/SDL_endian.h>
#include <SDL2/SDL_error.h>
#include <SDL2/SDL_rwops.h>
#include <png.h>

#include <array>
#include <cstring>
#include <system_error>

namespace platform {

namespace {

constexpr std::int64_t kLargestSide = 4096;
constexpr std::size_t kHead = 26;
using Head = std::array<Uint8, kHead>;

bool IsPng(const Head& head)
{
    return png_sig_cmp(head.data(), 0, 8) == 0;
}

// The four bytes from there on, the lowest first in BMP and the highest first in PNG.
std::int64_t NumberAt(const Head& head, std::size_t at, bool highestFirst)
{
    Uint32 value = 0;
    std::memcpy(&value, head.data() + at, sizeof value);
    return static_cast<Sint32>(highestFirst ? SDL_SwapBE32(value) : SDL_SwapLE32(value));
}

PictureSurface Empty(int width, int height, bool seeThrough)
{
    PictureSurface picture(SDL_CreateRGBSurfaceWithFormat(
        0, width, height, 32, seeThrough ? SDL_PIXELFORMAT_ARGB8888 : SDL_PIXELFORMAT_RGB888));
    if (picture) {
        SDL_SetSurfaceBlendMode(picture.get(), seeThrough ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    }
    return picture;
}

PictureSurface ReadBmp(const std::filesystem::path& file)
{
    const PictureSurface read(SDL_LoadBMP(file.c_str()));
    if (!read) {
        return nullptr;
    }
    PictureSurface picture = Empty(read->w, read->h, read->format->Amask != 0);
    if (picture) {
        SDL_SetSurfaceBlendMode(read.get(), SDL_BLENDMODE_NONE);
        SDL_BlitSurface(read.get(), nullptr, picture.get(), nullptr);
    }
    return picture;
}

PictureSurface ReadPng(const std::filesystem::path& file)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    PictureSurface picture;
    if (png_image_begin_read_from_file(&image, file.c_str()) != 0) {
        picture = Empty(static_cast<int>(image.width), static_cast<int>(image.height),
                        (image.format & PNG_FORMAT_FLAG_ALPHA) != 0);
        image.format = SDL_BYTEORDER == SDL_LIL_ENDIAN ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    }
    if (picture && png_image_finish_read(&image, nullptr, picture->pixels, picture->pitch, nullptr) == 0) {
        picture.reset();
    }
    if (!picture) {
        SDL_SetError("%s", image.message);
    }
    png_image_free(&image);
    return picture;
}

std::optional<Head> ReadHead(const std::filesystem::path& file)
{
    std::error_code error;
    if (std::filesystem::exists(file, error) && !files::IsRegularFile(file)) {
        SDL_SetError("expected a picture, found a folder, a pipe or a device");
        return std::nullopt;
    }
    SDL_RWops* source = SDL_RWFromFile(file.c_str(), "rb");
    if (source == nullptr) {
        return std::nullopt;
    }
    Head head{};
    const bool whole = SDL_RWread(source, head.data(), head.size(), 1) == 1;
    SDL_RWclose(source);
    if (!whole) {
        SDL_SetError("no picture in the BMP or PNG format");
        return std::nullopt;
    }
    return head;
}

// The size is looked at before the picture is read, because the pixels that a broken head asks for would be
// set aside first.
std::optional<PictureSize> SizeIn(const Head& head)
{
    const bool png = IsPng(head);
    const std::int64_t width = NumberAt(head, png ? 16 : 18, png);
    const std::int64_t height =
        std::abs(NumberAt(head, png ? 20 : 22, png));  // BMP: negative from top to bottom
    if ((!png && (head[0] != 'B' || head[1] != 'M')) || width <= 0 || width > kLargestSide || height == 0 ||
        height > kLargestSide) {
        SDL_SetError("no picture in the BMP or PNG format of a sensible size");
        return std::nullopt;
    }
    return PictureSize{static_cast<int>(width), static_cast<int>(height)};
}

}  // namespace

std::optional<PictureSize> ReadPictureSize(const std::filesystem::path& file)
{
    const std::optional<Head> head = ReadHead(file);
    return head ? SizeIn(*head) : std::nullopt;
}

PictureSurface ReadPicture(const std::filesystem::path& file)
{
    const std::optional<Head> head = ReadHead(file);
    if (!head || !SizeIn(*head)) {
        return nullptr;
    }
    return IsPng(*head) ? ReadPng(file) : ReadBmp(file);
}

}  // namespace platform
