#include "files/system_calls.h"

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
    return std::rename(from, to);
}

int SystemCalls::Remove(const char* path)
{
    return ::unlink(path);
}

int SystemCalls::MakeFolder(const char* path, unsigned mode)
{
    return ::mkdir(path, mode);
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

}  // namespace files
