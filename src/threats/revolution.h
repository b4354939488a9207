// Revolution: a faction rises; a link of the month's chain. A chief's coup enters it at the announcement.
//
//     BreaksOut          the routine Revolution: whether somebody dares
//     RevolutionStart    frmRev: flight (the game ends) or civil war
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "threats/civil_war.h"
#include "threats/flight.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_rev.h"

namespace threats {

class Revolution {
public:
    Revolution(core::GameState& state, core::Chance& chance, core::Journal& journal,
               screens::FrmMonthBanner& banner, screens::FrmRev& dialog, media::Sound& sound, Flight& flight,
               CivilWar& civilWar);

    bool BreaksOut();
    void RevolutionStart();

private:
    void NoteRevolution();

    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    screens::FrmMonthBanner& banner_;
    screens::FrmRev& dialog_;
    media::Sound& sound_;
};

}  // namespace threats
