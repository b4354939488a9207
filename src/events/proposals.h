// Proposals and the Americans: the answers to frmRandom2, the request for aid, and the end of their patience.
//
//     state.DealCode = kNavalBase;
//     screens.frmRandom2.Show();     // "Do it!" runs Deal, "Never!" runs Never; either closes the month
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "events/newspaper.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>

namespace events {

class Proposals {
public:
    Proposals(core::GameState& state, screens::Screens& screens, media::Sound& sound,
              const core::NumberFormat& format, Newspaper& newspaper);

    std::function<void()> endOfTurn2;  // the month's second half

    void Deal();
    void Never();
    void AmericanAid();
    // The C.I.A. has come. Its button leaves five and a half seconds.
    void ShowCia();

private:
    void AnswerYes();
    void AnswerNo();
    void AwaitDeath();
    void EndAnswer();

    core::GameState& state_;
    screens::Screens& screens_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
    Newspaper& newspaper_;
};

}  // namespace events
