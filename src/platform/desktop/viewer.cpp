#include "platform/desktop/viewer.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>
#include <system_error>

namespace platform {

namespace {

// The desktop's own choice of a viewer. By its whole path: a PATH that somebody else wrote starts nothing here.
constexpr const char* kViewer = "/usr/bin/xdg-open";

}  // namespace

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

// A grandchild, which nobody has to wait for. Between fork and exec it only calls what is safe there.
void OpenInViewer(const std::filesystem::path& file, std::string_view chapter)
{
    const std::string url = FileUrl(file) + (chapter.empty() ? "" : "#" + std::string(chapter));
    const pid_t child = fork();
    if (child == 0) {
        if (fork() == 0) {
            execl(kViewer, kViewer, url.c_str(), static_cast<char*>(nullptr));
        }
        _exit(EXIT_SUCCESS);
    }
    if (child > 0) {
        waitpid(child, nullptr, 0);
    }
}

}  // namespace platform
