#include "platform/desktop/quiet.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

Quiet::Quiet()
{
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (nowhere >= 0) {
        kept_ = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
        if (kept_ >= 0) {
            dup2(nowhere, STDERR_FILENO);
        }
        close(nowhere);
    }
}

Quiet::~Quiet()
{
    if (kept_ >= 0) {
        dup2(kept_, STDERR_FILENO);
        close(kept_);
    }
}

}  // namespace platform
