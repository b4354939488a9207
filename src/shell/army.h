// The army screen: the chief, everybody's strength, the bases, the islands that are gone, war or peace.
#pragma once

#include "core/game_state.h"
#include "ui/screens/frm_army.h"

namespace shell {

class ArmyScreen {
public:
    ArmyScreen(const core::GameState& state, screens::FrmArmy& army) : state_(state), army_(army) {}

    void Open();

private:
    void ShowIslands();
    void ShowBases();
    void ShowStrengths();
    void ShowWar();

    const core::GameState& state_;
    screens::FrmArmy& army_;
};

}  // namespace shell
