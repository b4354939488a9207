// frmBank: moves money from the treasury to where nobody asks. There is no way back.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kBankSheet{150, 170, 495, 272};
inline constexpr std::array kBankDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kBankSheet, "Private banking"},
    ui::Decor{ui::Decor::Kind::Hairline, {174, 270, 447, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {174, 348, 447, 1}},
    ui::Decor{.kind = ui::Decor::Kind::Stamp, .rect = {190, 383, 160, 26}, .text = "NO QUESTIONS", .angle = 7},
};

// No default button: a Return held too long must not empty the treasury.
struct FrmBank : ui::Form {
    explicit FrmBank(ui::Stage& stage)
        : Form(stage, {.name = "frmBank", .rect = kBankSheet, .decor = kBankDecor})
    {
        initialFocus = &Text1;
    }

    ui::Label Label3{*this, "Label3", {180, 234, 240, 28}, "Your Swiss bank account holds:", look::kCaption};
    ui::Label Label2{*this, "Label2", {425, 234, 190, 28}, "0", look::kTotal};
    ui::Label Label1{*this, "Label1", {180, 294, 220, 28}, "Amount to transfer:", look::kCaption};
    ui::TextBox Text1{*this, "Text1", {415, 290, 200, 38}, "0", look::kTyped, {.longest = ui::kAmountLength}};
    ui::CommandButton Command3{*this, "Command3", {415, 374, 200, 42}, "Proceed", look::kButton};
};

}  // namespace screens
