// The intelligence report: a paragraph and two bars for each faction. It changes nothing.
#pragma once

#include "core/game_state.h"
#include "ui/screens/frm_ain.h"
#include "ui/screens/frm_army.h"

namespace threats {

class Intelligence {
public:
    Intelligence(const core::GameState& state, screens::FrmArmy& army, screens::FrmAIN& report)
        : state_(state), army_(army), report_(report)
    {}

    void ArmyIn();

private:
    const core::GameState& state_;
    screens::FrmArmy& army_;
    screens::FrmAIN& report_;
};

}  // namespace threats
