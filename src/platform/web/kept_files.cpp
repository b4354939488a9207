#include "platform/web/kept_files.h"

#include "platform/web/page.h"

namespace platform {

int KeptFiles::Rename(const char* from, const char* to)
{
    const int result = SystemCalls::Rename(from, to);
    page::Keep();
    return result;
}

int KeptFiles::Remove(const char* path)
{
    const int result = SystemCalls::Remove(path);
    page::Keep();
    return result;
}

}  // namespace platform
