// The pictures of the screens, read from their files and scaled to the size at which they are shown.
//
//     SDL_Surface* picture = pictures.Get("images/title.bmp", 800, 600);
//     if (picture == nullptr) { ... }      // missing or broken: told once on standard error
//
// A picture that would be enlarged by more than a quarter is read from the file of twice the size,
// "images/2x/title.png", when there is one. Only the file in use is read.
//
// A large picture is kept while a screen that shows it is up; after painting, KeepOnly says which those are. Of
// the others the last ones used stay, as far as kSparePixels reach, for who goes there and back. Small ones (the
// menu's keys, the marks) stay all.
#pragma once

#include "files/program_folder.h"
#include "platform/picture_file.h"

#include <SDL2/SDL_surface.h>

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>

namespace platform {

class Pictures {
public:
    static constexpr std::int64_t kSparePixels = 480'000;

    explicit Pictures(const files::ProgramFolder& folder) : folder_(folder) {}

    // Width and height in pixels of the surface. The result lives until KeepOnly drops it.
    SDL_Surface* Get(std::string_view file, int width, int height);
    // The same for who keeps it himself; null when it is missing or broken.
    PictureSurface Load(std::string_view file, int width, int height);
    void KeepOnly(const std::function<bool(const std::string& file)>& isShown);
    void Clear() { kept_.clear(); }

    // Asked for a file that is not there; true: it is on its way, so that nothing is told and nothing kept of it.
    // Whoever says so calls Clear when it has come.
    std::function<bool(const std::filesystem::path& file)> onMissing;

    std::size_t Kept() const { return kept_.size(); }

private:
    PictureSurface Read(const std::string& file, int width);
    bool Awaits(const std::filesystem::path& file) const;
    void Tell(const std::string& file, const std::string& reason);

    files::ProgramFolder folder_;
    struct Entry {
        PictureSurface picture;
        std::int64_t used = 0;  // the larger, the later
    };
    std::map<std::tuple<std::string, int, int>, Entry> kept_;
    std::int64_t uses_ = 0;
    std::set<std::string> told_;
};

}  // namespace platform
