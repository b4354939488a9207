// Runs something in a process of its own, as a second game would.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace test {

template <class What> pid_t StartChild(const What& what)
{
    const pid_t child = fork();
    if (child == 0) {
        what();
        _exit(0);
    }
    return child;
}

// Whether it came to its own end, and was not killed.
inline bool Ended(pid_t child)
{
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace test
