// Revolts: those rise who belong to no faction; two links of the month's chain.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "threats/civil_war.h"
#include "threats/flight.h"
#include "ui/screens/frm_g_rev.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_pr_rev.h"

namespace threats {

class Revolts {
public:
    struct Screens {
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmGRev& frmGRev;
        screens::FrmPrRev& frmPrRev;
    };
    Revolts(core::GameState& state, core::Journal& journal, Screens screens, media::Sound& sound,
            Flight& flight, CivilWar& civilWar);

    // Whether they have gathered the strength; then they rise.
    bool GuerrillasRise();
    bool PrisonersRise();
    void Guerillas();
    void Prisoners();

private:
    void Announce(core::Group who, ui::Form& dialog, ui::Label& share, std::int64_t percent);

    core::GameState& state_;
    core::Journal& journal_;
    Screens screens_;
    media::Sound& sound_;
};

}  // namespace threats
