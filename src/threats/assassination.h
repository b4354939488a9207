// Assassination: a link of the month's chain, and what follows when somebody tries.
//
//     AssasinThink    frmMes: somebody tries; "Ooops!" and 5.5 seconds
//     AssasinTry      death and the hall of fame, or frmAFailed: the plotters' fate closes the month
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "month/month.h"
#include "ui/screens/frm_a_failed.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_mes.h"
#include "ui/screens/frm_mes1.h"
#include "ui/screens/frm_month_banner.h"

namespace threats {

class Assassination {
public:
    struct Screens {
        screens::FrmMain& frmMain;
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmMes& frmMes;
        screens::FrmAFailed& frmAFailed;
        screens::FrmMes1& frmMes1;
    };
    Assassination(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
                  Screens screens, media::Sound& sound);

    bool AssasinThink();     // whether somebody tries
    void AfterTheWarning();  // when Timer5 has run out
    void AssasinTry();

private:
    void Acknowledge();
    void KillThemAll();
    void LetThemLive();

    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    month::Month& month_;
    Screens screens_;
    media::Sound& sound_;
};

}  // namespace threats
