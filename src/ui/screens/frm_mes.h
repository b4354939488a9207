// frmMes: somebody is trying to kill the president.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kAttemptSheet{150, 130, 495, 330};
inline constexpr std::array kAttemptDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kAttemptSheet},
    ui::Decor{ui::Decor::Kind::Band, {150, 130, 495, 30}},
};

struct FrmMes : ui::Form {
    explicit FrmMes(ui::Stage& stage)
        : Form(stage, {.name = "frmMes", .rect = kAttemptSheet, .decor = kAttemptDecor, .asks = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", {150, 164, 495, 150}, "Somebody is behind you.", look::kPicture,
        {.picture = "images/assassination.bmp"}};
    ui::Label Label1{*this, "Label1", {190, 322, 415, 64}, "", look::kMessageBox};
    ui::CommandButton Command1{*this, "Command1", {307, 398, 180, 42}, "Ooops!", look::kButton};
};

}  // namespace screens
