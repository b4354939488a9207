// The outcome of a war: a link of the month's chain. frmWAR tells it and stays until the next command.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "month/month.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_war.h"

namespace threats {

class WarOutcome {
public:
    WarOutcome(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
               screens::FrmMonthBanner& banner, screens::FrmWAR& dialog)
        : state_(state), chance_(chance), journal_(journal), month_(month), banner_(banner), dialog_(dialog)
    {}

    bool WarIsDecided();  // a declared one always is
    void CheckVictory();

private:
    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    month::Month& month_;
    screens::FrmMonthBanner& banner_;
    screens::FrmWAR& dialog_;
};

}  // namespace threats
