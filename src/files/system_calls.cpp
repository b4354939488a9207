#include "files/system_calls.h"

#include "files/rename_if_new.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>

namespace files {

namespace {

template <class Call> auto Uninterrupted(const Call& call)
{
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

}  // namespace

int SystemCalls::Open(const char* path, int flags, unsigned mode)
{
    return Uninterrupted([&] { return ::open(path, flags, mode); });
}

int SystemCalls::Look(const char* path, struct stat& found)
{
    return Uninterrupted([&] { return ::lstat(path, &found); });
}

int SystemCalls::Describe(int file, struct stat& found)
{
    return Uninterrupted([&] { return ::fstat(file, &found); });
}

std::int64_t SystemCalls::Read(int file, char* data, std::size_t size)
{
    return Uninterrupted([&] { return ::read(file, data, size); });
}

std::int64_t SystemCalls::Write(int file, const char* data, std::size_t size)
{
    return Uninterrupted([&] { return ::write(file, data, size); });
}

int SystemCalls::Flush(int file)
{
    return Uninterrupted([&] { return ::fsync(file); });
}

// Not begun again: the file is closed even when the call was interrupted.
int SystemCalls::Close(int file)
{
    return ::close(file) == -1 && errno != EINTR ? -1 : 0;
}

int SystemCalls::Rename(const char* from, const char* to)
{
    return Uninterrupted([&] { return std::rename(from, to); });
}

// Some file systems cannot do it in one step. There the folder's lock keeps the other games out in between.
int SystemCalls::RenameToNew(const char* from, const char* to)
{
    const int result = Uninterrupted([&] { return RenameIfNew(from, to); });
    if (result == 0 || (errno != EINVAL && errno != ENOSYS)) {
        return result;
    }
    struct stat found {};
    if (Look(to, found) == 0) {
        errno = EEXIST;
        return -1;
    }
    return errno == ENOENT ? Rename(from, to) : -1;
}

int SystemCalls::Remove(const char* path)
{
    return Uninterrupted([&] { return ::unlink(path); });
}

int SystemCalls::MakeFolder(const char* path, unsigned mode)
{
    return Uninterrupted([&] { return ::mkdir(path, mode); });
}

int SystemCalls::Lock(int file)
{
    return Uninterrupted([&] { return ::flock(file, LOCK_EX | LOCK_NB); });
}

void SystemCalls::Pause(int milliseconds)
{
    constexpr long kNanoseconds = 1'000'000;
    const timespec time{milliseconds / 1000, milliseconds % 1000 * kNanoseconds};
    ::nanosleep(&time, nullptr);
}

void SystemCalls::WhenKept(const std::function<void(int reason)>& then)
{
    then(0);
}

}  // namespace files
