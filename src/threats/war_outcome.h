// The outcome of a war: a link of the month's chain. frmWAR tells it and stays until the next command.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/month_end.h"
#include "ui/screens/screens.h"

namespace threats {

class WarOutcome {
public:
    WarOutcome(core::GameState& state, core::Chance& chance, core::MonthEnd& monthEnd,
               screens::Screens& screens)
        : state_(state), chance_(chance), monthEnd_(monthEnd), screens_(screens)
    {}

    void CheckVictory();

private:
    core::GameState& state_;
    core::Chance& chance_;
    core::MonthEnd& monthEnd_;
    screens::Screens& screens_;
};

}  // namespace threats
