// frmMonthBanner: the backdrop of the whole game, with the one line through which it speaks.
//
// Black in peace, red while an uprising is fought. It lies behind all other screens and takes no input.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

namespace screens {

struct FrmMonthBanner : ui::Form {
    explicit FrmMonthBanner(ui::Desktop& desktop)
        : Form(desktop, {.name = "frmMonthBanner", .rect = ui::kSpace, .back = look::kBlack, .opaque = true, .backdrop = true})
    {}

    // Five lines at 34 pixels fill this place; a longer text is set one step smaller.
    ui::Label Label1{*this, "Label1", {70, 191, 660, 270}, "You are in power for 10 months", look::kBanner};
};

}  // namespace screens
