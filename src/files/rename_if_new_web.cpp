#include "files/rename_if_new.h"

#include <cerrno>

namespace files {

// In a browser one tab has the files at a time.
int RenameIfNew(const char*, const char*)
{
    errno = ENOSYS;
    return -1;
}

}  // namespace files
