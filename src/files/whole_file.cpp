#include "files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <system_error>

namespace files {

namespace {

std::string_view KindOf(const struct stat& found)
{
    switch (found.st_mode & S_IFMT) {
    case S_IFDIR:
        return "a folder";
    case S_IFIFO:
        return "a pipe";
    case S_IFSOCK:
        return "a socket";
    default:
        return "a device";
    }
}

// Closed again whatever happens.
struct Opened {
    SystemCalls& system;
    int file;
    ~Opened() { system.Close(file); }
};

Result<std::string> ReadOpened(SystemCalls& system, int file, std::string_view name)
{
    struct stat found {};
    if (system.Describe(file, found) == -1) {
        return SystemError(name, "cannot be read", errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return FileError{std::string(name), 0, "expected a file, found " + std::string(KindOf(found)),
                         FileError::Fault::System};
    }
    std::string content;
    char block[1U << 14U];
    for (std::int64_t size = 1; size > 0;) {
        size = system.Read(file, block, sizeof block);
        if (size == -1) {
            return SystemError(name, "cannot be read to its end", errno);
        }
        content.append(block, static_cast<std::size_t>(size));
        if (content.size() > kLargestFile) {
            return FileError{std::string(name), 0,
                             "expected at most " + std::to_string(kLargestFile) +
                                 " bytes of records, found more",
                             FileError::Fault::System};
        }
    }
    return content;
}

}  // namespace

FileError SystemError(std::string_view name, const std::string& what, int reason)
{
    return {std::string(name), 0, what + " (" + std::generic_category().message(reason) + ")",
            FileError::Fault::System};
}

// Opened without waiting: a pipe would keep us until somebody writes into it.
Result<std::string> ReadWhole(SystemCalls& system, const std::filesystem::path& path, std::string_view name)
{
    const int file = system.Open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0);
    if (file == -1) {
        return errno == ENXIO ? FileError{std::string(name), 0, "expected a file, found a socket or a device",
                                          FileError::Fault::System}
                              : SystemError(name, "cannot be read", errno);
    }
    const Opened opened{system, file};
    return ReadOpened(system, file, name);
}

Result<std::string> ReadWhole(const std::filesystem::path& path, std::string_view name)
{
    SystemCalls system;
    return ReadWhole(system, path, name);
}

bool IsRegularFile(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

}  // namespace files
