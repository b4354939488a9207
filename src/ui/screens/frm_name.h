// frmName: asks for the president's name. Modal; history waits.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr std::array kNameDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, {150, 190, 495, 240}, "Quenvale"},
};

struct FrmName : ui::Form {
    explicit FrmName(ui::Stage& stage)
        : Form(stage, {.name = "frmName", .caption = "Quenvale", .rect = {150, 190, 495, 240}, .decor = kNameDecor})
    {
        initialFocus = &Text1;
        defaultButton = &Command3;
    }

    ui::Label Label3{*this, "Label3", {180, 242, 435, 56}, "Please enter your name so the history will know who this bastard is!",
        look::kMessage};
    ui::TextBox Text1{*this, "Text1", {180, 312, 435, 36}, "", look::kTyped};
    ui::CommandButton Command3{*this, "Command3", {307, 368, 180, 42}, "OK", look::kButton};
};

}  // namespace screens
