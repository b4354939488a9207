// The office behind everything: it lends the banner its scene, and the last page, which hides the hall behind it; and
// it folds a message that has been read.
//
// The view changes at the month's turn and after what the president does, and not before: while a month's
// story is told the menu is not his, and the window stays as he last saw it.
#pragma once

#include "core/game_state.h"
#include "ui/screens/frm_farewell.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/toolkit/desktop.h"

namespace office {

class Backdrop {
public:
    Backdrop(const core::GameState& state, ui::Desktop& desktop, const screens::FrmMain& main,
             screens::FrmMonthBanner& banner, screens::FrmFarewell& farewell);

private:
    ui::Scene Scene();
    void FoldMessage();

    const core::GameState& state_;
    const ui::Desktop& desktop_;
    const screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
    ui::Scene night_;
};

}  // namespace office
