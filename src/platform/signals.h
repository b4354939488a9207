// SIGTERM, SIGINT and SIGHUP end the game without a question, as closing its window does.
//
//     const Signals signals([] { ... });      // called in a thread of its own; push an event there
//
// A second signal does not wait for the game any more and ends the program at once. A signal that was
// ignored when the program started (nohup) stays ignored.
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

private:
    std::thread watcher_;
};

}  // namespace platform
