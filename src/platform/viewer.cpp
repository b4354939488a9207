#include "platform/viewer.h"

#include <SDL2/SDL_misc.h>

#include <string_view>
#include <system_error>

namespace platform {

std::string FileUrl(const std::filesystem::path& file)
{
    constexpr std::string_view kPlain = "/-._~";
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::error_code ignored;
    std::filesystem::path whole = std::filesystem::absolute(file, ignored).lexically_normal();
    std::string url = "file://";
    for (const char c : whole.string()) {
        const auto byte = static_cast<unsigned char>(c);
        const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
        if (letter || kPlain.find(c) != std::string_view::npos) {
            url += c;
        } else {
            url += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
        }
    }
    return url;
}

void OpenInViewer(const std::filesystem::path& file)
{
    SDL_OpenURL(FileUrl(file).c_str());
}

}  // namespace platform
