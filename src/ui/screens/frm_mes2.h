// frmMes2: what an ally wants for his help.
#pragma once

#include "ui/screens/poster.h"

namespace screens {

inline constexpr ui::Rect kOfferSheet{87, 95, 626, 452};
inline constexpr std::array kOfferDecor{
    ui::Decor{ui::Decor::Kind::PosterSheet, kOfferSheet},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {90, 258, 620, 4}, .color = look::kOchre},
};

struct FrmMes2 : ui::Form {
    explicit FrmMes2(ui::Stage& stage)
        : Form(stage, {.name = "frmMes2", .rect = kOfferSheet, .decor = kOfferDecor, .asks = true})
    {
        cancelButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", {90, 98, 620, 160}, "Civil war", look::kPicture,
        {.picture = "images/civilwar.bmp"}};
    ui::Label lblSpeaker{*this, "lblSpeaker", {120, 268, 560, 32}, "", look::kPosterSpeaker};
    ui::Label Label1{*this, "Label1", {120, 304, 560, 168}, "", look::kPosterText};
    ui::CommandButton Command2{*this, "Command2", {130, 482, 250, 44}, "Deal!", look::kPosterButton};
    ui::CommandButton Command1{*this, "Command1", {420, 482, 250, 44}, "Never!", look::kPosterButton};
};

}  // namespace screens
