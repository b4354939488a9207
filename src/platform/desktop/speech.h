// The player's own voice: Speech Dispatcher, spoken to by a thread of its own, because it may have to be started,
// may be slow, and may die.
//
//     Speech speech(wake);                  // costs nothing until the first line
//     speech.Say({"The menu."}, true);      // returns at once
//     speech.Speaking(now)                  // until the last line is over; wake is called when that changes
//
// A line that met a dead dispatcher is said to the next one. When there is none at all, TakeTrouble says so once.
#pragma once

#include "ui/reading/voice.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace platform {

class Speech : public reading::Voice {
public:
    // Wake is called on other threads.
    explicit Speech(std::function<void()> wake);
    ~Speech() override;
    Speech(const Speech&) = delete;
    Speech& operator=(const Speech&) = delete;

    void Say(const std::vector<std::string>& lines, bool interrupt) override;
    void Silence() override;
    void SetRate(int rate) override;

    // Whether something is being said. A voice that never reports an end is believed for as long as the slowest
    // reader would take. Milliseconds of SDL's clock.
    bool Speaking(std::int64_t now) const;
    std::optional<std::int64_t> NextDue() const;  // when it is believed no longer
    // That there is no voice; only once for each time that it was looked for in vain.
    bool TakeTrouble();

private:
    struct Shared;
    struct Job;
    class Worker;
    void Give(Job job);

    std::function<void()> wake_;
    std::shared_ptr<Shared> shared_;
    std::uint64_t said_ = 0;  // jobs given
    std::int64_t believedUntil_ = 0;
    int rate_ = 0;
};

}  // namespace platform
