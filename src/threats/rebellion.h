// Revolution: a link of the month's chain. A chief's coup enters it at the announcement.
//
//     Revolution         somebody dares, or the chain goes on
//     RevolutionStart    frmRev: flight (the game ends) or civil war
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "media/cues.h"
#include "threats/civil_war.h"
#include "threats/flight.h"
#include "ui/screens/screens.h"

#include <functional>

namespace threats {

class Rebellion {
public:
    Rebellion(core::GameState& state, core::Chance& chance, screens::Screens& screens, media::Sound& sound,
              Flight& flight, CivilWar& civilWar);

    void Revolution();
    void RevolutionStart();

    std::function<void()> otherwise;  // nobody dared

private:
    core::GameState& state_;
    core::Chance& chance_;
    screens::Screens& screens_;
    media::Sound& sound_;
};

}  // namespace threats
