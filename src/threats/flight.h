// The flight from a revolution or a revolt: by helicopter, if there is one, or on foot. Either way the game is over.
//
//     screens.frmRev.Command1.onClick = [this] { flight_.From(screens_.frmRev); };
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

namespace threats {

class Flight {
public:
    Flight(core::GameState& state, core::Chance& chance, core::Journal& journal, screens::FrmMain& main,
           screens::FrmMonthBanner& banner, media::Sound& sound);

    void From(ui::Form& dialog);  // "Flee the country!"
    void Timer2_Timer();          // how it went

private:
    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
    media::Sound& sound_;
};

}  // namespace threats
