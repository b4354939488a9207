// frmMonthBanner: the backdrop of the whole game, with the one line through which it speaks.
//
// Black in peace, red while an uprising is fought. It lies behind all other screens and takes no input.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

namespace screens {

// Five lines at 34 pixels fill this place; a longer text is set one step smaller.
inline constexpr ui::Rect kBannerText{70, 191, 660, 270};
// Below the picture that some messages come with.
inline constexpr ui::Rect kBannerCaption{70, 352, 660, 132};

struct FrmMonthBanner : ui::Form {
    explicit FrmMonthBanner(ui::Stage& stage)
        : Form(stage, {.name = "frmMonthBanner", .rect = ui::kSpace, .back = look::kBlack, .opaque = true, .backdrop = true})
    {}

    ui::Label Label1{*this, "Label1", kBannerText, "You are in power for 10 months", look::kBanner};
    ui::Shape Shape1{*this, "Shape1", {87, 75, 626, 256}, "", look::kShape, {.visible = false, .back = look::kPaper}};
    ui::Picture Image1{*this, "Image1", {90, 78, 620, 250}, "", look::kPicture, {.visible = false}};
};

}  // namespace screens
