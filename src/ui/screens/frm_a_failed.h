// frmAFailed: the president lives, and so do the plotters. For now.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kPlottersSheet{150, 120, 495, 346};
inline constexpr std::array kPlottersDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kPlottersSheet},
    ui::Decor{ui::Decor::Kind::Band, {150, 120, 495, 36}},
};
inline constexpr std::array<ui::ElementRow, 2> kPlottersRows{{
    {0, {166, 123, 410, 30}, "Assasination Failed!", &look::kBandTitle},
    {1, {190, 318, 415, 68}, "Sir, do you want us to execute those involved? ", &look::kMessageBox},
}};

struct FrmAFailed : ui::Form {
    explicit FrmAFailed(ui::Stage& stage)
        : Form(stage, {.name = "frmAFailed", .rect = kPlottersSheet, .decor = kPlottersDecor, .asks = true})
    {}

    ui::ControlArray<ui::Label> lblPER{*this, "lblPER", kPlottersRows};
    ui::Picture Image1{*this, "Image1", {150, 160, 495, 150}, "Those involved", look::kPicture,
        {.picture = "images/plotters.bmp"}};
    ui::CommandButton Command1{*this, "Command1", {210, 402, 180, 42}, "Kill them all!", look::kDangerButton};
    ui::CommandButton Command2{*this, "Command2", {404, 402, 180, 42}, "Let them live", look::kButton};
};

}  // namespace screens
