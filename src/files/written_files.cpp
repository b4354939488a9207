#include "files/written_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <utility>

namespace files {

namespace {

namespace fs = std::filesystem;

constexpr unsigned kFileMode = 0666;  // less what the user's mask takes away
constexpr unsigned kFolderMode = 0777;

// Another game keeps the lock for a few milliseconds. One that was stopped in the middle keeps it for ever.
constexpr int kLockTries = 200;
constexpr int kLockPause = 10;  // milliseconds

// Some file systems know no locks. A save without a lock is better than none.
bool KnowsNoLocks(int reason)
{
    return reason == ENOLCK || reason == EOPNOTSUPP || reason == ENOSYS || reason == EINVAL ||
           reason == EBADF;
}

fs::path Beside(fs::path path)
{
    return path += ".new";
}

std::string AsideName(std::string_view file, int number)
{
    return std::string(file) + ".unreadable" + (number > 1 ? "-" + std::to_string(number) : "");
}

}  // namespace

Result<bool> WrittenFiles::Exists(const fs::path& path, std::string_view file) const
{
    struct stat found {};
    if (system_.Look(path.c_str(), found) == 0) {
        return true;
    }
    return errno == ENOENT ? Result<bool>(false) : SystemError(file, "cannot be looked at", errno);
}

// Where the file is read: as the game wrote it, else as it was shipped.
Result<fs::path> WrittenFiles::Place(std::string_view file) const
{
    fs::path written = folder_.WritePath(file);
    const Result<bool> there = Exists(written, file);
    if (!there) {
        return there.Error();
    }
    return *there ? std::move(written) : folder_.Path(file);
}

Result<bool> WrittenFiles::Has(std::string_view file) const
{
    const Result<fs::path> place = Place(file);
    return place ? Exists(*place, file) : place.Error();
}

std::string WrittenFiles::WrittenOn(std::string_view file) const
{
    const Result<fs::path> place = Place(file);
    struct stat found {};
    std::tm day{};
    if (!place || system_.Look(place->c_str(), found) != 0 || localtime_r(&found.st_mtime, &day) == nullptr) {
        return {};
    }
    std::array<char, sizeof "-2147483648-12-31"> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &day)};
}

Result<std::string> WrittenFiles::ReadWhole(std::string_view file) const
{
    const Result<fs::path> place = Place(file);
    return place ? files::ReadWhole(system_, *place, file) : place.Error();
}

Result<std::vector<Item>> WrittenFiles::Read(std::string_view file) const
{
    const Result<std::string> content = ReadWhole(file);
    return content ? ParseItems(*content, file) : content.Error();
}

Failure WrittenFiles::MakeFolders(const fs::path& folder, std::string_view file) const
{
    const Result<bool> there = Exists(folder, file);
    if (!there) {
        return there.Error();
    }
    const fs::path parent = folder.parent_path();
    if (*there || parent == folder) {
        return std::nullopt;
    }
    if (folder == folder_.Root()) {
        return FileError{std::string(file), 0, "the game's own folder " + folder.string() + " is gone",
                         FileError::Fault::System};
    }
    if (Failure failure = MakeFolders(parent, file)) {
        return failure;
    }
    if (system_.MakeFolder(folder.c_str(), kFolderMode) == -1 && errno != EEXIST) {
        return SystemError(file, "its folder cannot be made", errno);
    }
    // The new folder's own entry must last as well. Where it does not, the files' folders still hold together.
    const int opened = system_.Open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (opened != -1) {
        system_.Flush(opened);
        system_.Close(opened);
    }
    return std::nullopt;
}

Result<FolderLock> WrittenFiles::Lock(std::string_view file) const
{
    const fs::path folder = folder_.WritePath(file).parent_path();
    if (Failure failure = MakeFolders(folder, file)) {
        return *failure;
    }
    const int opened = system_.Open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (opened == -1) {
        return SystemError(file, "its folder cannot be opened", errno);
    }
    FolderLock lock(system_, opened);
    for (int i = 0; i < kLockTries; ++i) {
        if (system_.Lock(opened) == 0 || KnowsNoLocks(errno)) {
            return lock;
        }
        if (errno != EWOULDBLOCK) {
            return SystemError(file, "its folder cannot be locked", errno);
        }
        system_.Pause(kLockPause);
    }
    return FileError{std::string(file), 0, "another game has kept its folder locked for too long",
                     FileError::Fault::System};
}

Failure WrittenFiles::WriteBeside(const fs::path& path, std::string_view file, std::string_view content) const
{
    system_.Remove(path.c_str());  // what a killed game may have left
    const int opened =
        system_.Open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kFileMode);
    if (opened == -1) {
        return SystemError(file, "cannot be written", errno);
    }
    Failure failure;
    while (!failure && !content.empty()) {
        const std::int64_t written = system_.Write(opened, content.data(), content.size());
        if (written > 0) {
            content.remove_prefix(static_cast<std::size_t>(written));
        } else {
            failure = SystemError(file, "cannot be written", written == 0 ? ENOSPC : errno);
        }
    }
    if (!failure && system_.Flush(opened) == -1) {
        failure = SystemError(file, "cannot be flushed to the disk", errno);
    }
    if (system_.Close(opened) == -1 && !failure) {
        failure = SystemError(file, "cannot be closed", errno);
    }
    return failure;
}

Failure WrittenFiles::Replace(const FolderLock& lock, std::string_view file, std::string_view content) const
{
    const fs::path path = folder_.WritePath(file);
    const fs::path beside = Beside(path);
    Failure failure = WriteBeside(beside, file, content);
    if (!failure && system_.Rename(beside.c_str(), path.c_str()) == -1) {
        failure = SystemError(file, "cannot be put in its place", errno);
    }
    if (failure) {
        system_.Remove(beside.c_str());
        return failure;
    }
    // Some file systems cannot flush a folder and need not.
    if (system_.Flush(lock.Folder()) == -1 && errno != EINVAL) {
        return SystemError(file, "is written, but the disk does not confirm it", errno);
    }
    return std::nullopt;
}

Result<std::string> WrittenFiles::KeepAside(const FolderLock& lock, std::string_view file) const
{
    const fs::path path = folder_.WritePath(file);
    const Result<bool> there = Exists(path, file);
    if (!there) {
        return there.Error();
    }
    if (!*there) {
        return std::string();
    }
    int number = 1;
    std::string name = AsideName(file, number);
    while (system_.RenameToNew(path.c_str(), folder_.WritePath(name).c_str()) == -1) {
        if (errno != EEXIST) {
            return SystemError(file, "cannot be given another name", errno);
        }
        name = AsideName(file, ++number);
    }
    if (system_.Flush(lock.Folder()) == -1 && errno != EINVAL) {
        return SystemError(file, "has another name, but the disk does not confirm it", errno);
    }
    return name;
}

Failure WrittenFiles::Remove(const FolderLock& lock, std::string_view file) const
{
    if (system_.Remove(folder_.WritePath(file).c_str()) == -1) {
        return errno == ENOENT ? Failure() : SystemError(file, "cannot be removed", errno);
    }
    system_.Flush(lock.Folder());
    return std::nullopt;
}

void WrittenFiles::WhenKept(std::string_view file, std::function<void(const Failure&)> then) const
{
    system_.WhenKept([file = std::string(file), then = std::move(then)](int reason) {
        then(reason == 0 ? Failure() : SystemError(file, "cannot be kept", reason));
    });
}

void WrittenFiles::Tidy(std::span<const std::string> files) const
{
    for (const std::string& file : files) {
        const fs::path left = Beside(folder_.WritePath(file));
        struct stat found {};
        if (system_.Look(left.c_str(), found) == -1) {
            continue;
        }
        const int folder = system_.Open(left.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
        if (folder == -1) {
            continue;
        }
        const FolderLock lock(system_, folder);
        if (system_.Lock(folder) == 0 || KnowsNoLocks(errno)) {
            system_.Remove(left.c_str());
        }
    }
}

}  // namespace files
