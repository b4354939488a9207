// The hall of fame, and the way back to the title that leads through it.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "files/written_files.h"
#include "persist/hall_file.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

namespace shell {

class Hall {
public:
    Hall(core::GameState& state, ui::Desktop& desktop, screens::Screens& screens,
         const files::WrittenFiles& files, const core::NumberFormat& format);

    // At a game's end: the president is placed among the ten, and the list is shown.
    void TopTen();
    // The list as it is.
    void See();
    // Closes everything of the finished game and shows the title. While the list is only being looked at it
    // restarts nothing.
    void GRestart();

private:
    void ShowList(const persist::Hall& list);
    void TellAltered();
    void ShowTrouble(const std::string& trouble);

    core::GameState& state_;
    ui::Desktop& desktop_;
    screens::Screens& screens_;
    persist::HallOfFame hall_;
    const core::NumberFormat& format_;
};

}  // namespace shell
