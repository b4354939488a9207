// The archive's five slots, each with its name. frmSave and frmLoad are such forms.
//
// The first slot's option has no caption of its own; the form has it printed on it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr ui::Rect kSlotSheet{60, 84, 680, 470};
inline constexpr int kSlotCount = 5;
constexpr int SlotTop(int slot) { return 138 + 59 * slot; }
constexpr ui::Rect SlotOption(int slot) { return {84, SlotTop(slot), 160, 36}; }
constexpr ui::Rect SlotName(int slot) { return {252, SlotTop(slot), 464, 36}; }
constexpr ui::Rect SlotAbout(int slot) { return {256, SlotTop(slot) + 37, 460, 19}; }
inline constexpr auto kSlotAboutRows = [] {
    std::array<ui::ElementRow, kSlotCount> rows{};
    for (int slot = 0; slot < kSlotCount; ++slot) {
        rows[static_cast<std::size_t>(slot)] = {slot, SlotAbout(slot), "", &look::kSmallCaption};
    }
    return rows;
}();
inline constexpr std::array kSlotDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kSlotSheet},
    ui::Decor{ui::Decor::Kind::Band, {60, 84, 680, 38}},
    ui::Decor{ui::Decor::Kind::Caption, {116, 138, 128, 36}, "Game Slot 1"},
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

    ui::OptionButton Option1{*this, "Option1", SlotOption(0), "", look::kOption};
    ui::TextBox Text1{*this, "Text1", SlotName(0), texts_.firstSlot, look::kTyped};
    ui::OptionButton Option2{*this, "Option2", SlotOption(1), "Game  Slot 2", look::kOption};
    ui::TextBox Text2{*this, "Text2", SlotName(1), "Empty slot", look::kTyped};
    ui::OptionButton Option3{*this, "Option3", SlotOption(2), "Game Slot 3", look::kOption};
    ui::TextBox Text3{*this, "Text3", SlotName(2), "Empty slot", look::kTyped};
    ui::OptionButton Option4{*this, "Option4", SlotOption(3), "Game Slot 4", look::kOption};
    ui::TextBox Text4{*this, "Text4", SlotName(3), "Empty slot", look::kTyped};
    ui::OptionButton Option5{*this, "Option5", SlotOption(4), "Game Slot 5", look::kOption};
    ui::TextBox Text5{*this, "Text5", SlotName(4), "Empty slot", look::kTyped};

    // "Ada, month 12, Normal. 2026-11-23", under each name.
    ui::ControlArray<ui::Label> lblAbout{*this, "lblAbout", kSlotAboutRows};

    // What went wrong while the form was filled; the banner is covered by it.
    ui::Label Label2{*this, "Label2", {84, 434, 632, 58}, "", look::kTrouble};
    ui::CommandButton Command1{*this, "Command1", {342, 500, 180, 42}, texts_.button, look::kButton};
    ui::CommandButton Command2{*this, "Command2", {536, 500, 180, 42}, "Cancel", look::kButton};

    // Slot 1 first.
    const std::array<ui::OptionButton*, 5> options{&Option1, &Option2, &Option3, &Option4, &Option5};
    const std::array<ui::TextBox*, 5> names{&Text1, &Text2, &Text3, &Text4, &Text5};
};

}  // namespace screens
