// The revolts of those who belong to no faction: two links of the month's chain.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "threats/civil_war.h"
#include "threats/flight.h"
#include "ui/screens/screens.h"

namespace threats {

class Revolts {
public:
    Revolts(core::GameState& state, screens::Screens& screens, media::Sound& sound, Flight& flight,
            CivilWar& civilWar);

    void Guerillas();
    void Prisoners();

private:
    void Announce(ui::Form& dialog, ui::Label& share, std::int64_t percent);

    core::GameState& state_;
    screens::Screens& screens_;
    media::Sound& sound_;
};

}  // namespace threats
