// frmUSA: the Americans have stopped writing letters.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kUsaSheet{150, 150, 495, 336};
inline constexpr std::array kUsaDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kUsaSheet},
    ui::Decor{ui::Decor::Kind::Band, {150, 150, 495, 30}},
};

struct FrmUSA : ui::Form {
    explicit FrmUSA(ui::Stage& stage)
        : Form(stage, {.name = "frmUSA", .rect = kUsaSheet, .decor = kUsaDecor, .asks = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", {150, 184, 495, 150}, "", look::kPicture, {.picture = "images/assassination.bmp"}};
    ui::Label Label1{*this, "Label1", {190, 344, 415, 64}, "Assasination attempt from C.I.A !", look::kMessageBox};
    ui::CommandButton Command1{*this, "Command1", {307, 420, 180, 42}, "Shit!", look::kButton};
};

}  // namespace screens
