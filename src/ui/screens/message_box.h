// The paper message box: what the dialogs have in common that say one thing and wait for an answer.
//
//     struct FrmMes : ui::Form {
//         explicit FrmMes(ui::Stage& stage)
//             : Form(stage, {.name = "frmMes", .rect = kMessageSheet, .decor = kMessageDecor})
//         ...
//         ui::Label Label1{*this, "Label1", kMessageText, "", look::kMessageBox};
//         ui::CommandButton Command1{*this, "Command1", kMessageButton, "Ooops!", look::kButton};
//
// A message without a button uses kMessageWholeText, one with two buttons the left and the right place.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kMessageSheet{150, 190, 495, 240};
inline constexpr std::array kMessageDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kMessageSheet},
    ui::Decor{ui::Decor::Kind::Band, {150, 190, 495, 30}},
};

inline constexpr ui::Rect kMessageText{190, 232, 415, 116};       // four lines of the largest size
inline constexpr ui::Rect kMessageWholeText{190, 232, 415, 182};  // down to the foot
inline constexpr ui::Rect kMessageButton{307, 364, 180, 42};
inline constexpr ui::Rect kMessageLeftButton{210, 364, 180, 42};
inline constexpr ui::Rect kMessageRightButton{404, 364, 180, 42};

}  // namespace screens
