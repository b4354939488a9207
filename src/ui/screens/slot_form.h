// The archive's five slots, each with its name. frmSave and frmLoad are such forms.
//
// The first slot's option has no caption of its own; the form has it printed on it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr ui::Rect kSlotSheet{60, 84, 680, 420};
inline constexpr std::array kSlotDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kSlotSheet},
    ui::Decor{ui::Decor::Kind::Band, {60, 84, 680, 38}},
    ui::Decor{ui::Decor::Kind::Caption, {116, 140, 128, 36}, "Game Slot 1"},
};

struct SlotForm : ui::Form {
    // What the two forms differ in.
    struct Texts {
        std::string_view name, title, firstSlot, button;
    };

    SlotForm(ui::Stage& stage, const Texts& texts)
        : Form(stage, {.name = texts.name, .rect = kSlotSheet, .decor = kSlotDecor, .asks = true}), texts_(texts)
    {
        cancelButton = &Command2;
    }

private:
    Texts texts_;

public:
    ui::Label Label1{*this, "Label1", {76, 87, 596, 32}, texts_.title, look::kBandTitle};

    ui::OptionButton Option1{*this, "Option1", {84, 140, 160, 36}, "", look::kOption};
    ui::TextBox Text1{*this, "Text1", {252, 140, 464, 36}, texts_.firstSlot, look::kTyped};
    ui::OptionButton Option2{*this, "Option2", {84, 188, 160, 36}, "Game  Slot 2", look::kOption};
    ui::TextBox Text2{*this, "Text2", {252, 188, 464, 36}, "Empty slot", look::kTyped};
    ui::OptionButton Option3{*this, "Option3", {84, 236, 160, 36}, "Game Slot 3", look::kOption};
    ui::TextBox Text3{*this, "Text3", {252, 236, 464, 36}, "Empty slot", look::kTyped};
    ui::OptionButton Option4{*this, "Option4", {84, 284, 160, 36}, "Game Slot 4", look::kOption};
    ui::TextBox Text4{*this, "Text4", {252, 284, 464, 36}, "Empty slot", look::kTyped};
    ui::OptionButton Option5{*this, "Option5", {84, 332, 160, 36}, "Game Slot 5", look::kOption};
    ui::TextBox Text5{*this, "Text5", {252, 332, 464, 36}, "Empty slot", look::kTyped};

    // What went wrong while the form was filled; the banner is covered by it.
    ui::Label Label2{*this, "Label2", {84, 378, 632, 60}, "", look::kTrouble};
    ui::CommandButton Command1{*this, "Command1", {342, 446, 180, 42}, texts_.button, look::kButton};
    ui::CommandButton Command2{*this, "Command2", {536, 446, 180, 42}, "Cancel", look::kButton};

    // Slot 1 first.
    const std::array<ui::OptionButton*, 5> options{&Option1, &Option2, &Option3, &Option4, &Option5};
    const std::array<ui::TextBox*, 5> names{&Text1, &Text2, &Text3, &Text4, &Text5};
};

}  // namespace screens
