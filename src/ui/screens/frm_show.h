// frmShow: an action card. What the police expect of the action, before the president decides.
#pragma once

#include "ui/screens/card_grid.h"

namespace screens {

inline constexpr CardPlan kShowPlan{.band = 56, .head = 146, .height = 298, .note = {480, 130, 272, 368}};
inline constexpr std::array kShowDecor = CardDecor(kShowPlan, "TO BE SIGNED");

struct FrmShow : CardForm {
    explicit FrmShow(ui::Stage& stage)
        : CardForm(stage, {.name = "frmShow", .rect = kCardSheet, .decor = kShowDecor, .asks = true}, kShowPlan)
    {
        initialFocus = &Command1;
        cancelButton = &Command1;
    }

    // What the button said that led here; the report's own title likes to call it something else.
    ui::Label lblAction{*this, "lblAction", {46, 61, 655, 20}, "", look::kBandNote};
    ui::Label Label8{*this, "Label8", {46, 80, 655, 30}, "Police report for", look::kBandTitle};
    ui::Label Label10{*this, "Label10", {50, 119, kCardTableWidth, 26}, "This action will effect the society like this:", look::kLead};
    ui::CommandButton Command1{*this, "Command1", kCardLeftButton, "Cancel action", look::kButton};
    ui::CommandButton Command3{*this, "Command3", kCardRightButton, "Proceed", look::kDangerButton};
};

}  // namespace screens
