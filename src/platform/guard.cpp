#include "platform/guard.h"

#include "platform/crtc_modes.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace platform {

namespace {

constexpr char kRemember = 'R';
constexpr char kForget = 'F';
constexpr char kDone = 'D';
constexpr int kPatience = 2000;  // ms that a switch may wait for the guard

// What ends the game must not end the guard, and nobody who reads the game's output should wait for it.
void StandApart(int pipe)
{
    setsid();
    for (const int number : {SIGHUP, SIGINT, SIGTERM, SIGQUIT, SIGPIPE}) {
        std::signal(number, SIG_IGN);
    }
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nowhere, standard);
    }
    constexpr int kFirst = 3;
    close_range(kFirst, static_cast<unsigned>(pipe) - 1, 0);
    close_range(static_cast<unsigned>(pipe) + 1, ~0U, 0);
    prctl(PR_SET_NAME, "quenvale-guard");
}

[[noreturn]] void StandGuard(int pipe)
{
    StandApart(pipe);
    ScreenModes modes;
    char order = 0;
    while (read(pipe, &order, 1) == 1) {
        if (order == kForget) {
            modes = {};
            continue;
        }
        modes = ReadScreenModes();
        if (send(pipe, &kDone, 1, MSG_NOSIGNAL) != 1) {
            break;
        }
    }
    RestoreScreenModes(modes);
    _exit(0);
}

}  // namespace

Guard::Guard()
{
    const char* display = std::getenv("DISPLAY");
    int ends[2] = {-1, -1};
    // Closed when another program is started: the pipe must end with the game, not with its document viewer.
    if (display == nullptr || *display == '\0' ||
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        return;
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        StandGuard(ends[1]);
    }
    close(ends[1]);
    if (child < 0) {
        close(ends[0]);
        return;
    }
    pipe_ = ends[0];
}

Guard::~Guard()
{
    if (pipe_ >= 0) {
        close(pipe_);
    }
}

void Guard::Remember()
{
    if (pipe_ < 0 || send(pipe_, &kRemember, 1, MSG_NOSIGNAL) != 1) {
        return;
    }
    pollfd answer{pipe_, POLLIN, 0};
    char done = 0;
    if (poll(&answer, 1, kPatience) == 1 && recv(pipe_, &done, 1, 0) != 1) {
        close(pipe_);
        pipe_ = -1;
    }
}

void Guard::Forget()
{
    if (pipe_ >= 0) {
        send(pipe_, &kForget, 1, MSG_NOSIGNAL);
    }
}

}  // namespace platform
