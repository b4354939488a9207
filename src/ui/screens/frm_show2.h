// frmShow2: a faction's request. Modal: it waits for an answer, and so does the faction.
#pragma once

#include "ui/screens/card_grid.h"

namespace screens {

inline constexpr CardPlan kShow2Plan{.band = 38, .head = 204, .height = 262, .note = {480, 204, 272, 294}};
inline constexpr std::array kShow2Decor = CardDecor(kShow2Plan, "RECEIVED");

struct FrmShow2 : CardForm {
    explicit FrmShow2(ui::Stage& stage)
        : CardForm(stage, {.name = "frmShow2", .rect = kCardSheet, .decor = kShow2Decor, .asks = true}, kShow2Plan)
    {}

    ui::Label Label8{*this, "Label8", {46, 62, 655, 30}, "A request from the", look::kBandTitle};
    ui::Label Label10{*this, "Label10", {50, 108, 695, 92}, "", look::kBody};
    ui::CommandButton Command1{*this, "Command1", kCardLeftButton, "O.K. do it!", look::kButton};
    ui::CommandButton Command3{*this, "Command3", kCardRightButton, "Never!", look::kButton};
};

}  // namespace screens
