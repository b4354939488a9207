// frmNewspaper: the front page of El Faro, a whole picture with one button.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

namespace screens {

inline constexpr ui::Rect kNewspaperPage{20, 58, 760, 532};

struct FrmNewspaper : ui::Form {
    explicit FrmNewspaper(ui::Stage& stage)
        : Form(stage, {.name = "frmNewspaper", .rect = kNewspaperPage, .back = look::kBlack, .opaque = true, .dims = 45})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Picture Image1{*this, "Image1", kNewspaperPage, "", look::kPicture};
    // Every page keeps this corner empty.
    ui::CommandButton Command1{*this, "Command1", {656, 551, 106, 30}, "Oh!", look::kButton};
};

}  // namespace screens
