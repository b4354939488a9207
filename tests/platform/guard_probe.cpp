// Switches the X server's mode under a guard's eyes and then goes the way its argument says:
//     kill, segv, exit: the guard must put the mode back;     forget: it must leave it alone
#include "platform/crtc_modes.h"
#include "platform/guard.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    const std::string_view way = argc > 1 ? argv[1] : "";
    platform::Guard guard;
    guard.Remember();
    if (std::system("xrandr --size 800x600") != 0) {
        std::cerr << "guard_probe: no mode of 800x600\n";
        return EXIT_FAILURE;
    }
    if (way == "kill") {
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
