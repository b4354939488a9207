// A rename in one step that never replaces: the one call that a system may lack altogether.
#pragma once

namespace files {

// 0, or -1 with errno: EEXIST when that name is taken, ENOSYS or EINVAL where it cannot be done in one step.
int RenameIfNew(const char* from, const char* to);

}  // namespace files
