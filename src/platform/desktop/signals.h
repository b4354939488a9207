// SIGTERM, SIGINT and SIGHUP end the game without a question, as closing its window does.
//
//     const Signals signals([] { ... });      // called in a thread of its own; push an event there
//
// A game that has not ended some time later (it waits for a disk that does not answer, say) is ended as it
// stands: what it writes is whole at every moment. A second signal ends it at once. The program's status is then
// 128 and the signal's number. A signal that was ignored when the program started (nohup) stays ignored.
#pragma once

#include <functional>
#include <thread>

namespace platform {

class Signals {
public:
    explicit Signals(const std::function<void()>& onSignal);
    ~Signals();
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

    // 0 while none came, else what the program ends with.
    static int ExitStatus();

private:
    std::thread watcher_;
};

}  // namespace platform
