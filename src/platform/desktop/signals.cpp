#include "platform/desktop/signals.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>

namespace platform {

namespace {

constexpr std::array kWatched{SIGTERM, SIGINT, SIGHUP};
constexpr int kSignalStatus = 128;  // as the shell counts
constexpr char kStop = 0;
constexpr int kPatience = 700;  // milliseconds from the signal to the end

// A handler may do little more than write to a pipe; the thread at its other end does the rest.
int signalPipe[2] = {-1, -1};
std::atomic<int> signalled = 0;  // its number
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void OnSignal(int number)
{
    if (signalled.exchange(number) != 0) {
        _exit(kSignalStatus + number);
    }
    const char byte = static_cast<char>(number);
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
}

void SetHandlers(void (*handler)(int))
{
    for (const int number : kWatched) {
        struct sigaction current {};
        sigaction(number, nullptr, &current);
        if (current.sa_handler != SIG_IGN) {
            struct sigaction wanted {};
            wanted.sa_handler = handler;
            wanted.sa_flags = SA_RESTART;
            sigaction(number, &wanted, nullptr);
        }
    }
}

}  // namespace

Signals::Signals(const std::function<void()>& onSignal)
{
    if (pipe2(signalPipe, O_CLOEXEC) != 0) {
        return;
    }
    watcher_ = std::thread([onSignal] {
        char byte = kStop;
        while (read(signalPipe[0], &byte, 1) == 1 && byte != kStop) {
            onSignal();
            pollfd stopped{.fd = signalPipe[0], .events = POLLIN, .revents = 0};
            if (poll(&stopped, 1, kPatience) == 0) {
                _exit(kSignalStatus + byte);
            }
        }
    });
    signalled = 0;
    SetHandlers(OnSignal);
}

int Signals::ExitStatus()
{
    const int number = signalled;
    return number == 0 ? 0 : kSignalStatus + number;
}

Signals::~Signals()
{
    if (!watcher_.joinable()) {
        return;
    }
    SetHandlers(SIG_DFL);
    if (write(signalPipe[1], &kStop, 1) == 1) {
        watcher_.join();
    } else {
        watcher_.detach();
    }
    close(signalPipe[0]);
    close(signalPipe[1]);
}

}  // namespace platform
