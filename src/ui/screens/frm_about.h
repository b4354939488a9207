// frmAbout: who made this, and the advice to leave. A click anywhere closes it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kAboutSheet{90, 92, 620, 400};
inline constexpr std::array kAboutDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kAboutSheet, "About Quenvale"},
};

struct FrmAbout : ui::Form {
    explicit FrmAbout(ui::Stage& stage)
        : Form(stage, {.name = "frmAbout", .caption = "Quenvale", .rect = kAboutSheet, .decor = kAboutDecor})
    {}

    ui::Picture Image1{*this, "Image1", {112, 152, 300, 300}, "Quenvale", look::kPicture,
        {.picture = "images/about.bmp"}};
    ui::Label Label1{*this, "Label1", {434, 152, 256, 66}, "Quenvale, version 2.1.1. Printed by the State.",
        look::kStatus};
    ui::Label Label2{*this, "Label2", {434, 226, 256, 110},
        "Any likeness to a president, living or comfortable, is a coincidence that he has been asked to sign for.",
        look::kBody};
    ui::Label Label3{*this, "Label3", {434, 344, 256, 66},
        "No peasant was harmed in the making of this program. The others were not counted.",
        look::kBody};
    ui::Label Label5{*this, "Label5", {434, 426, 256, 26}, "Click to continue", look::kCaption};
};

}  // namespace screens
