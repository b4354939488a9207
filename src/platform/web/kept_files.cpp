#include "platform/web/kept_files.h"

#include "platform/web/page.h"

#include <utility>

namespace platform {

int KeptFiles::Rename(const char* from, const char* to)
{
    const int result = SystemCalls::Rename(from, to);
    Keep();
    return result;
}

int KeptFiles::Remove(const char* path)
{
    const int result = SystemCalls::Remove(path);
    Keep();
    return result;
}

void KeptFiles::WhenKept(const std::function<void(int reason)>& then)
{
    if (writing_) {
        waiting_.push_back(then);
    } else {
        then(reason_);
    }
}

void KeptFiles::Keep()
{
    writing_ = true;
    page::Keep();
}

void KeptFiles::Answered(int reason)
{
    writing_ = false;
    reason_ = reason;
    for (const std::function<void(int)>& then : std::exchange(waiting_, {})) {
        then(reason);
    }
}

}  // namespace platform
