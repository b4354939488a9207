// Assassination: a link of the month's chain, and what follows when somebody tries.
//
//     AssasinThink    frmMes: somebody tries; "Ooops!" and 5.5 seconds
//     AssasinTry      death and the hall of fame, or frmAFailed: the plotters' fate closes the month
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/month_end.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>

namespace threats {

class Assassination {
public:
    Assassination(core::GameState& state, core::Chance& chance, core::MonthEnd& monthEnd,
                  screens::Screens& screens, media::Sound& sound);

    void AssasinThink();
    void AfterTheWarning();  // when Timer5 has run out
    void AssasinTry();

    std::function<void()> otherwise;  // nobody tried

private:
    void Acknowledge();
    void KillThemAll();
    void LetThemLive();
    void CloseMonth();

    core::GameState& state_;
    core::Chance& chance_;
    core::MonthEnd& monthEnd_;
    screens::Screens& screens_;
    media::Sound& sound_;
};

}  // namespace threats
