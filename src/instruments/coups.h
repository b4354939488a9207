// The chiefs' coups: a link of the month's chain.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "ui/screens/frm_mes3.h"

#include <functional>

namespace instruments {

class Coups {
public:
    Coups(core::GameState& state, core::Chance& chance, core::Journal& journal, screens::FrmMes3& message,
          media::Sound& sound);

    bool ChiefCoup();  // whether one of them was not loyal

    std::function<void()> revolutionStart;  // the player has read who was not

private:
    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    screens::FrmMes3& message_;
    media::Sound& sound_;
};

}  // namespace instruments
