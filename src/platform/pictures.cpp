#include "platform/pictures.h"

#include "files/whole_file.h"
#include "platform/scale_picture.h"

#include <SDL2/SDL_error.h>

#include <iostream>

namespace platform {

namespace {

constexpr int kSmallPixels = 128 * 128;
constexpr double kMostEnlarged = 1.25;
// From here on four neighbours are all that a pixel is made of; a smaller picture would lose its dots.
constexpr double kLeastForLinear = 0.75;

// "images/title.bmp" is also there as "images/2x/title.png".
std::filesystem::path DoubleOf(const std::filesystem::path& file)
{
    const auto folder = file.begin();
    return (*folder / "2x" / file.lexically_relative(*folder)).replace_extension(".png");
}

PictureSurface Scaled(const SDL_Surface& picture, int width, int height)
{
    const bool seeThrough = picture.format->Amask != 0;
    PictureSurface scaled(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, picture.format->format));
    if (!scaled) {
        return nullptr;
    }
    if (!seeThrough && width >= kLeastForLinear * picture.w && height >= kLeastForLinear * picture.h) {
        auto& source = const_cast<SDL_Surface&>(picture);                // SDL only reads it
        SDL_SoftStretchLinear(&source, nullptr, scaled.get(), nullptr);  // several times faster
    } else {
        ScalePicture(picture, *scaled);
    }
    SDL_SetSurfaceBlendMode(scaled.get(), seeThrough ? SDL_BLENDMODE_BLEND : SDL_BLENDMODE_NONE);
    return scaled;
}

}  // namespace

bool Pictures::Awaits(const std::filesystem::path& file) const
{
    return onMissing && !files::IsRegularFile(file) && onMissing(file);
}

// A missing or broken file of twice the size is no fault that the player could see.
PictureSurface Pictures::Read(const std::string& file, int width)
{
    const std::filesystem::path single = folder_.Path(file);
    const std::optional<PictureSize> size = ReadPictureSize(single);
    if (!size) {
        return nullptr;
    }
    if (width > kMostEnlarged * size->width) {
        const std::filesystem::path sharp = folder_.Path(DoubleOf(file).string());
        Awaits(sharp);
        if (PictureSurface picture = ReadPictureSize(sharp) ? ReadPicture(sharp) : nullptr) {
            return picture;
        }
    }
    return ReadPicture(single);
}

void Pictures::Tell(const std::string& file, const std::string& reason)
{
    if (told_.insert(file).second) {
        std::cerr << "quenvale: " << folder_.Path(file).string() << ": " << reason << '\n';
    }
}

PictureSurface Pictures::Load(std::string_view file, int width, int height)
{
    const std::string name(file);
    PictureSurface picture = Read(name, width);
    if (!picture) {
        const std::string reason = SDL_GetError();
        if (!Awaits(folder_.Path(name))) {
            Tell(name, reason);
        }
        return nullptr;
    }
    const bool fits = picture->w == width && picture->h == height;
    return fits ? std::move(picture) : Scaled(*picture, width, height);
}

SDL_Surface* Pictures::Get(std::string_view file, int width, int height)
{
    auto [it, isNew] = kept_.try_emplace({std::string(file), width, height});
    if (isNew && !file.empty() && width > 0 && height > 0) {
        it->second = Load(file, width, height);
    }
    return it->second.get();
}

void Pictures::KeepOnly(const std::function<bool(const std::string& file)>& isShown)
{
    std::erase_if(kept_, [&isShown](const auto& entry) {
        const PictureSurface& picture = entry.second;
        const bool small = picture && picture->w * picture->h <= kSmallPixels;
        return !small && !isShown(std::get<0>(entry.first));
    });
}

}  // namespace platform
