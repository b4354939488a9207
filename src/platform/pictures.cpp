#include "platform/pictures.h"

#include "platform/scale_picture.h"

#include <SDL2/SDL_endian.h>
#include <SDL2/SDL_error.h>
#include <SDL2/SDL_rwops.h>

#include <array>
#include <iostream>

namespace platform {

namespace {

// Larger than any of ours by far. The size is looked at before the picture is read, because the pixels
// that a broken header asks for would be set aside first.
constexpr Sint32 kLargestSide = 4096;
constexpr int kSmallPixels = 128 * 128;

bool SaneSize(SDL_RWops& file)
{
    std::array<Uint8, 26> head{};
    const bool read = SDL_RWread(&file, head.data(), head.size(), 1) == 1;
    SDL_RWseek(&file, 0, RW_SEEK_SET);
    const auto number = [&head](std::size_t at) {
        Uint32 value = 0;
        for (std::size_t i = 4; i-- > 0;) {
            value = (value << 8U) | head[at + i];
        }
        return static_cast<Sint32>(value);
    };
    constexpr std::size_t kWidthAt = 18;
    constexpr std::size_t kHeightAt = 22;
    return read && head[0] == 'B' && head[1] == 'M' && number(kWidthAt) > 0 &&
           number(kWidthAt) <= kLargestSide && number(kHeightAt) != 0 && number(kHeightAt) <= kLargestSide &&
           number(kHeightAt) >= -kLargestSide;
}

}  // namespace

// In 32 bits, with opacity where the file has it.
Pictures::Surface Pictures::Load(const std::string& file) const
{
    SDL_RWops* source = SDL_RWFromFile(folder_.Path(file).c_str(), "rb");
    if (source == nullptr) {
        return nullptr;
    }
    if (!SaneSize(*source)) {
        SDL_RWclose(source);
        SDL_SetError("no picture in the BMP format of a sensible size");
        return nullptr;
    }
    const Surface read(SDL_LoadBMP_RW(source, 1));
    if (!read) {
        return nullptr;
    }
    const bool seeThrough = read->format->Amask != 0;
    const Uint32 format = seeThrough ? SDL_PIXELFORMAT_ARGB8888 : SDL_PIXELFORMAT_RGB888;
    Surface picture(SDL_ConvertSurfaceFormat(read.get(), format, 0));
    if (picture) {
        SDL_SetSurfaceBlendMode(picture.get(), seeThrough ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    }
    return picture;
}

void Pictures::Tell(const std::string& file, const std::string& reason)
{
    if (told_.insert(file).second) {
        std::cerr << "quenvale: " << folder_.Path(file).string() << ": " << reason << '\n';
    }
}

SDL_Surface* Pictures::Get(std::string_view file, int width, int height)
{
    const std::string name(file);
    auto [it, isNew] = kept_.try_emplace({name, width, height});
    if (!isNew || name.empty() || width <= 0 || height <= 0) {
        return it->second.get();
    }
    Surface picture = Load(name);
    if (!picture) {
        Tell(name, SDL_GetError());
        return nullptr;
    }
    if (picture->w == width && picture->h == height) {
        it->second = std::move(picture);
        return it->second.get();
    }
    const bool seeThrough = picture->format->Amask != 0;
    Surface scaled(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, picture->format->format));
    if (!scaled) {
        return nullptr;
    }
    if (!seeThrough && width >= picture->w && height >= picture->h) {
        SDL_SoftStretchLinear(picture.get(), nullptr, scaled.get(), nullptr);  // several times faster
    } else {
        ScalePicture(*picture, *scaled);
    }
    SDL_SetSurfaceBlendMode(scaled.get(), seeThrough ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    it->second = std::move(scaled);
    return it->second.get();
}

void Pictures::KeepOnly(const std::function<bool(const std::string& file)>& isShown)
{
    std::erase_if(kept_, [&isShown](const auto& entry) {
        const Surface& picture = entry.second;
        const bool small = picture && picture->w * picture->h <= kSmallPixels;
        return !small && !isShown(std::get<0>(entry.first));
    });
}

}  // namespace platform
