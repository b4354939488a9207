// The routines with which a game begins.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "files/program_folder.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <optional>
#include <string>
#include <vector>

namespace core {

class NewGame {
public:
    NewGame(GameState& state, Chance& chance, const files::ProgramFolder& folder, screens::FrmMain& main,
            screens::FrmMonthBanner& banner);

    // Start values of the level in state.Difficulty, the officers and the welcome. Runs whenever the main
    // screen is loaded.
    void Initialize();
    // Both officer tables anew.
    void CreateChiefs();

private:
    // Empty, or what is wrong with the list of names; the officers then go by number.
    std::optional<std::string> TryCreateChiefs();

    GameState& state_;
    Chance& chance_;
    const files::ProgramFolder& folder_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace core
