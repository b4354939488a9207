// Whatever bytes a picture, a sound or the player's settings hold: they are taken or refused with a reason, and
// nothing is made of them that is larger than it can be.
#include "demand.h"
#include "office/settings.h"
#include "platform/desktop/wave_file.h"
#include "platform/picture_file.h"
#include "reader.h"

#include <SDL2/SDL_error.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

bool HasReason()
{
    return *SDL_GetError() != '\0';
}

// A file that lies in memory, since pictures are read by their path.
std::string InMemory(std::string_view bytes)
{
    static const int file = memfd_create("input", 0);
    Demand(ftruncate(file, 0) == 0 &&
           pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    return "/proc/self/fd/" + std::to_string(file);
}

void TryPicture(std::string_view bytes)
{
    constexpr int kLargestSide = 4096;
    static const std::filesystem::path path = InMemory({});
    InMemory(bytes);
    SDL_ClearError();
    const auto size = platform::ReadPictureSize(path);
    const platform::PictureSurface picture = platform::ReadPicture(path);
    Demand(size || (!picture && HasReason()));
    Demand(picture || HasReason());
    Demand(!picture || (picture->w == size->width && picture->h == size->height &&
                        size->width <= kLargestSide && size->height <= kLargestSide));
}

void TrySound(std::string_view bytes)
{
    SDL_ClearError();
    const auto samples = platform::ReadWave(SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size())));
    Demand(samples || HasReason());
}

void TrySettings(std::string_view bytes)
{
    const office::SettingsText text = office::ParseSettings(bytes, "settings");
    for (const files::FileError& wrong : text.wrong) {
        Demand(wrong.line > 0 && !wrong.what.empty());
    }
    const std::string written = office::PrintSettings(text.settings, bytes);
    const office::SettingsText again = office::ParseSettings(written, "settings");
    Demand(again.wrong.empty() && office::PrintSettings(again.settings, written) == written);
    Demand(office::PrintSettings(text.settings, "") == office::PrintSettings(again.settings, ""));
}

}  // namespace

std::span<const Reader> Readers()
{
    static constexpr Reader kReaders[] = {
        {"bmp", TryPicture}, {"png", TryPicture}, {"wav", TrySound}, {"settings", TrySettings}};
    return kReaders;
}
