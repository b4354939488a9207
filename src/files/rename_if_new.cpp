#include "files/rename_if_new.h"

#include <fcntl.h>

#include <cstdio>

namespace files {

int RenameIfNew(const char* from, const char* to)
{
    return ::renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE);
}

}  // namespace files
