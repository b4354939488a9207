#include "platform/desktop/guard.h"

#include "platform/desktop/crtc_modes.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <limits>

namespace platform {

namespace {

// An order is one byte: this, or a number by which to remember. The answer is that number again, so that one
// which came too late for its own question is not taken for the next one's.
constexpr unsigned char kForget = 0;
constexpr std::chrono::milliseconds kPatience{2000};  // that a switch may wait for the guard

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
    unsigned char order = kForget;
    while (read(pipe, &order, 1) == 1) {
        if (order == kForget) {
            modes = {};
            continue;
        }
        modes = ReadScreenModes();
        if (send(pipe, &order, 1, MSG_NOSIGNAL) != 1) {
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
    if (remembers_ || pipe_ < 0) {
        return;
    }
    remembers_ = true;
    order_ = order_ == std::numeric_limits<unsigned char>::max() ? 1 : static_cast<unsigned char>(order_ + 1);
    if (send(pipe_, &order_, 1, MSG_NOSIGNAL) == 1) {
        AwaitAnswer();
    }
}

void Guard::AwaitAnswer()
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + kPatience;
    unsigned char answered = kForget;
    while (answered != order_) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        pollfd answer{pipe_, POLLIN, 0};
        if (left.count() <= 0 || poll(&answer, 1, static_cast<int>(left.count())) != 1) {
            return;
        }
        if (recv(pipe_, &answered, 1, 0) != 1) {
            close(pipe_);
            pipe_ = -1;
            return;
        }
    }
}

void Guard::Forget()
{
    remembers_ = false;
    if (pipe_ >= 0) {
        send(pipe_, &kForget, 1, MSG_NOSIGNAL);
    }
}

}  // namespace platform
