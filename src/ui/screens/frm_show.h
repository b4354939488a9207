// frmShow: an action card. What the police expect of the action, before the president decides.
#pragma once

#include "ui/screens/card_grid.h"

namespace screens {

inline constexpr CardPlan kShowPlan{.head = 137, .height = 305, .note = {476, 124, 271, 368}};
inline constexpr std::array kShowDecor = CardDecor(kShowPlan, "TO BE SIGNED");

struct FrmShow : CardForm {
    explicit FrmShow(ui::Stage& stage)
        : CardForm(stage, {.name = "frmShow", .rect = kCardSheet, .decor = kShowDecor, .asks = true}, kShowPlan)
    {
        initialFocus = &Command1;
        cancelButton = &Command1;
    }

    ui::Label Label8{*this, "Label8", kCardTitle, "Police report for", look::kBandTitle};
    ui::Label Label10{*this, "Label10", {50, 106, 404, 28}, "This action will effect the society like this:", look::kLead};
    ui::CommandButton Command1{*this, "Command1", kCardLeftButton, "Cancel action", look::kButton};
    ui::CommandButton Command3{*this, "Command3", kCardRightButton, "Proceed", look::kDangerButton};
};

}  // namespace screens
