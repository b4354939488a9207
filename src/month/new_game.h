// The routines with which a game begins.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "files/program_folder.h"
#include "month/month.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace month {

class NewGame {
public:
    NewGame(core::GameState& state, core::Chance& chance, const files::ProgramFolder& folder, Month& month,
            screens::FrmMain& main, screens::FrmMonthBanner& banner);

    std::function<void()> onBegun;

    // Start values of the level in state.Difficulty, the officers and the welcome. Runs whenever the main
    // screen is loaded.
    void Initialize();
    // Both officer tables anew.
    void CreateChiefs();

private:
    // Empty, or what is wrong with the list of names; the officers then go by number.
    std::optional<std::string> TryCreateChiefs();

    core::GameState& state_;
    core::Chance& chance_;
    const files::ProgramFolder& folder_;
    Month& month_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace month
