// Switches the X server's mode under a guard's eyes and then goes the way its argument says:
//     kill, segv, exit: the guard must put the mode back;     forget: it must leave it alone
//     late: the guard answers a first question when nobody waits any more; it must still put the mode back
#include "platform/desktop/crtc_modes.h"
#include "platform/desktop/guard.h"

#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <thread>

namespace {

void SignalGuard(int signal)
{
    const pid_t own = getpid();
    const std::string path = "/proc/" + std::to_string(own) + "/task/" + std::to_string(own) + "/children";
    pid_t guard = 0;
    std::ifstream(path) >> guard;
    kill(guard, signal);
}

// The answer to a question that was given up must not pass for the answer to the next one.
void AskASleepyGuard(platform::Guard& guard)
{
    using namespace std::chrono_literals;
    SignalGuard(SIGSTOP);
    guard.Remember();
    guard.Forget();
    SignalGuard(SIGCONT);
    std::this_thread::sleep_for(500ms);
    SignalGuard(SIGSTOP);
    std::thread([] {
        std::this_thread::sleep_for(1s);
        SignalGuard(SIGCONT);
    }).detach();
}

}  // namespace

int main(int argc, char** argv)
{
    const std::string_view way = argc > 1 ? argv[1] : "";
    platform::Guard guard;
    if (way == "late") {
        AskASleepyGuard(guard);
    }
    guard.Remember();
    if (std::system("xrandr --size 800x600") != 0) {
        std::cerr << "guard_probe: no mode of 800x600\n";
        return EXIT_FAILURE;
    }
    if (way == "kill" || way == "late") {
        std::raise(SIGKILL);
    } else if (way == "segv") {
        std::signal(SIGSEGV, SIG_DFL);
        std::raise(SIGSEGV);
    } else if (way == "exit") {
        _exit(EXIT_SUCCESS);
    } else if (way == "forget") {
        guard.Forget();
    }
    return EXIT_SUCCESS;
}
