// frmBank: moves money from the treasury to where nobody asks. There is no way back.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kBankSheet{150, 132, 495, 348};
inline constexpr std::array kBankDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kBankSheet, "Private banking"},
    ui::Decor{ui::Decor::Kind::Hairline, {174, 214, 447, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {174, 256, 447, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {174, 398, 447, 1}},
};

// What a click adds to the amount, in million dollars.
inline constexpr int kBankSteps = 3;
inline constexpr std::array<int, kBankSteps> kBankMillions{1, 5, 10};
inline constexpr std::array<ui::ElementRow, kBankSteps> kBankStepRows{{
    {0, {180, 268, 104, 34}, "+ 1 million", &look::kButton},
    {1, {290, 268, 104, 34}, "+ 5 million", &look::kButton},
    {2, {400, 268, 112, 34}, "+ 10 million", &look::kButton},
}};

// No default button: a Return held too long must not empty the treasury.
struct FrmBank : ui::Form {
    explicit FrmBank(ui::Stage& stage)
        : Form(stage, {.name = "frmBank", .rect = kBankSheet, .decor = kBankDecor})
    {
        initialFocus = &Text1;
        cancelButton = &cmdNotToday;
    }

    ui::Label Label3{*this, "Label3", {180, 180, 240, 28}, "Your Swiss bank account holds:", look::kCaption};
    ui::Label Label2{*this, "Label2", {425, 180, 190, 28}, "0", look::kTotal};
    ui::Label Label4{*this, "Label4", {180, 222, 240, 28}, "Deficit to be left behind:", look::kCaption};
    ui::Label lblDeficit{*this, "lblDeficit", {425, 222, 190, 28}, "0", look::kTotal};
    ui::ControlArray<ui::CommandButton> cmdStep{*this, "cmdStep", kBankStepRows};
    ui::CommandButton cmdAll{*this, "cmdAll", {518, 268, 97, 34}, "All", look::kButton};
    ui::Label Label1{*this, "Label1", {180, 321, 220, 28}, "Amount to transfer:", look::kCaption};
    ui::TextBox Text1{*this, "Text1", {415, 316, 200, 38}, "0", look::kTyped, {.longest = ui::kAmountLength}};
    ui::Label lblAdvice{*this, "lblAdvice", {180, 370, 435, 26}, "", look::kTrouble};
    ui::CommandButton Command3{*this, "Command3", {180, 416, 200, 42}, "Proceed", look::kButton};
    ui::CommandButton cmdNotToday{*this, "cmdNotToday", {415, 416, 200, 42}, "Not today", look::kButton};
};

}  // namespace screens
