// Random events: the last thing that can happen in a month before a faction may ask for something.
//
// One draw a month decides (10 numbers on Easy, 9 on Normal, 8 on Hard):
//
//     1     a disaster, each once a game; when all have been, a demand
//     2     a demand of the ambassador, each once a game; when all have been, damage by the guerrillas
//     3, 4  damage by the guerrillas, from a strength of 12 on
//     5     a chief is gone
//     6     good news, once a game
//     else  nothing: the month closes, then somebody may have a request
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/numbers.h"
#include "events/newspaper.h"
#include "events/requests.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>
#include <string_view>

namespace events {

class Surprises {
public:
    Surprises(core::GameState& state, core::Chance& chance, screens::Screens& screens, media::Sound& sound,
              const core::NumberFormat& format, Newspaper& newspaper, Requests& requests);

    std::function<void()> endOfTurn2;  // the month's second half

    void RandomEvents();

private:
    // Each returns whether it happened.
    bool ChiefIsGone();
    bool Disaster();
    bool Demand();
    bool GuerrillaDamage();
    bool GoodNews();
    void Propose(std::string_view text);

    core::GameState& state_;
    core::Chance& chance_;
    screens::Screens& screens_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
    Newspaper& newspaper_;
    Requests& requests_;
};

}  // namespace events
