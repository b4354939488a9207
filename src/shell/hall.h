// The hall of fame, and the way back to the title that leads through it.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "files/written_files.h"
#include "month/month.h"
#include "persist/hall_file.h"
#include "ui/screens/frm_logo.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_start.h"
#include "ui/screens/frm_top_102.h"
#include "ui/toolkit/desktop.h"

#include <functional>
#include <string>

namespace shell {

class HallScreen {
public:
    struct Screens {
        screens::FrmTop102& frmTop102;
        screens::FrmMonthBanner& frmMonthBanner;
        screens::Frmlogo& frmlogo;
        screens::FrmStart& frmStart;
    };
    HallScreen(core::GameState& state, month::Month& month, ui::Desktop& desktop, Screens screens,
               const files::WrittenFiles& files, const core::NumberFormat& format);

    // At a game's end: the president is placed among the ten, and the list is shown.
    void TopTen();
    // Once the list is shown at a game's end: his place from 0 (-1: none) and his points as they are shown.
    std::function<void(int place, const std::string& points)> onEntered;

    // What the foot says of the president who has just come, beside his points; empty for nothing.
    std::function<std::string()> stampOf;

    // The list as it is.
    void See();
    // Closes everything of the finished game and shows the title. While the list is only being looked at it
    // restarts nothing.
    void GRestart();

private:
    void ShowList(const persist::HallList& list);
    void LayOut(int height);
    void ShowOwn(bool row, bool foot);
    void ShowOwnRow(const persist::HallReport& report, const std::string& points, const std::string& stamp);
    void TellAltered();
    void ShowTrouble(const std::string& trouble);

    core::GameState& state_;
    month::Month& month_;
    ui::Desktop& desktop_;
    Screens screens_;
    persist::HallFile hall_;
    const core::NumberFormat& format_;
};

}  // namespace shell
