// The narrator's voice in the window: what is said goes to Speech Dispatcher, pauses wait for it, sounds duck under it.
//
//     Narration narration(game.GetNarrator());
//     narration.Speaking()       // then the desktop's clock stands still
//     narration.Update();        // after each frame: tells when there is no voice
//
// Costs nothing until narration is switched on, but one question to the session bus whether a screen reader runs.
#pragma once

#include "platform/desktop/speech.h"
#include "ui/reading/narrator.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>

namespace platform {

class Narration {
public:
    // SDL's events must be started.
    explicit Narration(reading::Narrator& narrator);
    ~Narration();
    Narration(const Narration&) = delete;
    Narration& operator=(const Narration&) = delete;

    // Offers the voice, once for all, to whom a screen reader reads the desktop to.
    void OfferWhenWanted();

    bool Speaking() const;
    std::optional<std::int64_t> NextDue() const { return speech_.NextDue(); }  // on SDL's clock
    void Update();

private:
    reading::Narrator& narrator_;
    Speech speech_;
    // Outlives the question when the program ends before the answer.
    std::shared_ptr<std::atomic<bool>> wanted_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace platform
