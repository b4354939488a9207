#include "platform/pictures.h"

#include "files/whole_file.h"
#include "platform/scale_picture.h"

#include <SDL2/SDL_error.h>

#include <algorithm>
#include <iostream>
#include <vector>

namespace platform {

namespace {

constexpr int kSmallPixels = 128 * 128;
constexpr double kMostEnlarged = 1.25;
// From here on four neighbours are all that a pixel is made of; a smaller picture would lose its dots.
constexpr double kLeastForLinear = 0.75;

std::int64_t Pixels(const SDL_Surface& picture)
{
    return std::int64_t{picture.w} * picture.h;
}

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
    Entry& entry = it->second;
    if (isNew && !file.empty() && width > 0 && height > 0) {
        entry.picture = Load(file, width, height);
    }
    entry.used = ++uses_;
    return entry.picture.get();
}

void Pictures::KeepOnly(const std::function<bool(const std::string& file)>& isShown)
{
    using Place = decltype(kept_)::iterator;
    std::vector<Place> spare;
    for (auto it = kept_.begin(); it != kept_.end(); ++it) {
        const PictureSurface& picture = it->second.picture;
        const bool small = picture && Pixels(*picture) <= kSmallPixels;
        if (!small && !isShown(std::get<0>(it->first))) {
            spare.push_back(it);
        }
    }
    std::sort(spare.begin(), spare.end(), [](Place a, Place b) { return a->second.used > b->second.used; });
    std::int64_t pixels = 0;
    for (const Place place : spare) {
        const PictureSurface& picture = place->second.picture;
        pixels += picture ? Pixels(*picture) : 0;
        if (!picture || pixels > kSparePixels) {  // what could not be read may be there the next time
            kept_.erase(place);
        }
    }
}

}  // namespace platform
