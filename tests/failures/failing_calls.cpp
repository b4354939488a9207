// Loaded before the system's library (LD_PRELOAD): counts the calls about files below one folder, and lets the one of
// a number fail, do half of its work, or be the process's last.
//
// Who plans it writes into the file that QUENVALE_FAILURES names; see Plan. Nothing is flushed to the disk: the
// process ends, the machine does not.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum Mode : std::int32_t { kCount, kOnce, kFromThenOn, kShort, kZero, kDie };

// In the file as it stands here, in the machine's byte order; calls_test.py writes the same.
struct Plan {
    std::int32_t armed;
    std::int32_t seen;  // calls
    std::int32_t at;    // the first has number 1
    std::int32_t reason;
    std::int32_t mode;
    std::array<char, 1004> folder;
    std::array<char, 3072> calls;  // a letter for each that was seen
};
static_assert(sizeof(Plan) == 4096);

Plan* FindPlan()
{
    const char* name = std::getenv("QUENVALE_FAILURES");
    const int file = name == nullptr ? -1 : static_cast<int>(openat(AT_FDCWD, name, O_RDWR | O_CLOEXEC));
    void* memory =
        file == -1 ? MAP_FAILED : mmap(nullptr, sizeof(Plan), PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<Plan*>(memory);
}

Plan* ThePlan()
{
    static Plan* const plan = FindPlan();
    return plan;
}

std::array<bool, 1024> ours{};  // open files below the folder

bool IsOurs(int file)
{
    return file >= 0 && file < static_cast<int>(ours.size()) && ours[static_cast<std::size_t>(file)];
}

bool IsOurs(const char* path)
{
    const Plan* plan = ThePlan();
    return plan != nullptr && std::strncmp(path, plan->folder.data(), std::strlen(plan->folder.data())) == 0;
}

enum class Fate { Goes, Fails, Short, Zero };

Fate Next(char letter)
{
    constexpr int kExitStatus = 99;
    constexpr std::int32_t kInterruptions = 5;  // who is interrupted for ever never ends
    Plan* plan = ThePlan();
    if (plan == nullptr || plan->armed == 0) {
        return Fate::Goes;
    }
    if (plan->seen < static_cast<std::int32_t>(plan->calls.size())) {
        plan->calls[static_cast<std::size_t>(plan->seen)] = letter;
    }
    const std::int32_t now = ++plan->seen;
    if (plan->mode == kCount || now < plan->at) {
        return Fate::Goes;
    }
    if (plan->mode == kFromThenOn && (plan->reason != EINTR || now < plan->at + kInterruptions)) {
        errno = plan->reason;
        return Fate::Fails;
    }
    if (now != plan->at) {
        return Fate::Goes;
    }
    switch (plan->mode) {
    case kOnce:
        errno = plan->reason;
        return Fate::Fails;
    case kShort:
        return Fate::Short;
    case kZero:
        return Fate::Zero;
    case kDie:
        _exit(kExitStatus);
    default:
        return Fate::Goes;
    }
}

template <class Call> Call* Real(const char* name)
{
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    const bool counts = IsOurs(path);
    if (counts && Next('o') == Fate::Fails) {
        return -1;
    }
    const int file = openat(AT_FDCWD, path, flags, mode);
    if (file >= 0 && file < static_cast<int>(ours.size())) {
        ours[static_cast<std::size_t>(file)] = counts;
    }
    return file;
}

int lstat(const char* path, struct stat* found) noexcept
{
    return IsOurs(path) && Next('l') == Fate::Fails ? -1
                                                    : fstatat(AT_FDCWD, path, found, AT_SYMLINK_NOFOLLOW);
}

int fstat(int file, struct stat* found) noexcept
{
    return IsOurs(file) && Next('s') == Fate::Fails ? -1 : fstatat(file, "", found, AT_EMPTY_PATH);
}

ssize_t read(int file, void* data, size_t size)
{
    static auto* const real = Real<ssize_t(int, void*, size_t)>("read");
    const Fate fate = IsOurs(file) ? Next('r') : Fate::Goes;
    return fate == Fate::Fails ? -1 : real(file, data, fate == Fate::Short && size > 100 ? 100 : size);
}

ssize_t write(int file, const void* data, size_t size)
{
    static auto* const real = Real<ssize_t(int, const void*, size_t)>("write");
    const Fate fate = IsOurs(file) ? Next('w') : Fate::Goes;
    if (fate == Fate::Fails || fate == Fate::Zero) {
        return fate == Fate::Fails ? -1 : 0;
    }
    return real(file, data, fate == Fate::Short ? (size + 1) / 2 : size);
}

int fsync(int file)
{
    return IsOurs(file) && Next('f') == Fate::Fails ? -1 : 0;
}

// What fails is closed all the same, as in the system.
int close(int file)
{
    static auto* const real = Real<int(int)>("close");
    const bool counts = IsOurs(file);
    if (counts) {
        ours[static_cast<std::size_t>(file)] = false;
    }
    const bool fails = counts && Next('c') == Fate::Fails;
    const int reason = errno;
    const int result = real(file);
    if (fails) {
        errno = reason;
        return -1;
    }
    return result;
}

int rename(const char* from, const char* to) noexcept
{
    return IsOurs(to) && Next('n') == Fate::Fails ? -1 : renameat(AT_FDCWD, from, AT_FDCWD, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept
{
    static auto* const real = Real<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return IsOurs(to) && Next('N') == Fate::Fails ? -1 : real(fromFolder, from, toFolder, to, flags);
}

int unlink(const char* path) noexcept
{
    return IsOurs(path) && Next('u') == Fate::Fails ? -1 : unlinkat(AT_FDCWD, path, 0);
}

int mkdir(const char* path, mode_t mode) noexcept
{
    return IsOurs(path) && Next('m') == Fate::Fails ? -1 : mkdirat(AT_FDCWD, path, mode);
}

int flock(int file, int how) noexcept
{
    static auto* const real = Real<int(int, int)>("flock");
    return IsOurs(file) && Next('k') == Fate::Fails ? -1 : real(file, how);
}

}  // extern "C"
