// Gives the player the display's mode back when the game is gone and could not do so itself.
//
//     Guard guard;             // before SDL is started, while the program has one thread
//     guard.Remember();        // before the mode is switched; returns when the modes are written down. What is
//                              // remembered already stays: by then the mode may be our own
//     guard.Forget();          // after the game has put the mode back
//
// The guard is a small process of its own that waits at the other end of a pipe. When the pipe ends while
// something is remembered (a crash, SIGKILL, _exit), it sets the modes of the X server as they were.
// Without an X display there is no such process and all of this does nothing.
#pragma once

namespace platform {

class Guard {
public:
    Guard();
    ~Guard();  // a clean end: nothing is put back that is not remembered
    Guard(const Guard&) = delete;
    Guard& operator=(const Guard&) = delete;

    void Remember();
    void Forget();

private:
    void AwaitAnswer();

    int pipe_ = -1;
    bool remembers_ = false;
    unsigned char order_ = 0;  // the number of the last order to remember
};

}  // namespace platform
