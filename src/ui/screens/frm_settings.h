// frmSettings: what the player sets for all his games. A press of a value goes on to the next one.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

enum SettingRow { kSettingMute, kSettingScreen, kSettingPauses, kSettingNarration, kSettingRows };

inline constexpr ui::Rect kSettingsSheet{110, 92, 580, 426};
// Line 0 is the volume's.
constexpr int SettingTop(int line) { return 138 + 58 * line; }
constexpr ui::Rect SettingName(int line) { return {136, SettingTop(line) + 5, 240, 26}; }
constexpr ui::Rect SettingNote(int line) { return {136, SettingTop(line) + 31, 250, 20}; }
constexpr ui::Rect SettingValue(int row) { return {396, SettingTop(row + 1) + 10, 260, 38}; }

inline constexpr std::array kSettingsDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kSettingsSheet, "Settings"},
    ui::Decor{ui::Decor::Kind::Stripe, {122, SettingTop(1), 556, 58}},
    ui::Decor{ui::Decor::Kind::Stripe, {122, SettingTop(3), 556, 58}},
    ui::Decor{ui::Decor::Kind::FootStrip, {110, 458, 580, 60}},
};

inline constexpr std::array<ui::ElementRow, kSettingRows + 1> kSettingNames{{
    {0, SettingName(0), "Sound", &look::kTotalCaption},
    {1, SettingName(1), "Silence", &look::kTotalCaption},
    {2, SettingName(2), "Screen", &look::kTotalCaption},
    {3, SettingName(3), "Pauses", &look::kTotalCaption},
    {4, SettingName(4), "Narration", &look::kTotalCaption},
}};
inline constexpr std::array<ui::ElementRow, kSettingRows + 1> kSettingNotes{{
    {0, SettingNote(0), "Loud enough for the neighbours.", &look::kSmallCaption},
    {1, SettingNote(1), "The neighbours have written.", &look::kSmallCaption},
    {2, SettingNote(2), "The State fills what it is given.", &look::kSmallCaption},
    {3, SettingNote(3), "How long the secretary waits.", &look::kSmallCaption},
    {4, SettingNote(4), "Your deeds, told by a stranger.", &look::kSmallCaption},
}};
inline constexpr std::array<ui::ElementRow, kSettingRows> kSettingValues{{
    {kSettingMute, SettingValue(kSettingMute), "Off", &look::kButton},
    {kSettingScreen, SettingValue(kSettingScreen), "Full screen", &look::kButton},
    {kSettingPauses, SettingValue(kSettingPauses), "Full", &look::kButton},
    {kSettingNarration, SettingValue(kSettingNarration), "Off", &look::kButton},
}};

struct FrmSettings : ui::Form {
    explicit FrmSettings(ui::Stage& stage)
        : Form(stage, {.name = "frmSettings", .rect = kSettingsSheet, .decor = kSettingsDecor, .own = true})
    {
        initialFocus = &cmdDone;
        cancelButton = &cmdDone;
    }

    ui::ControlArray<ui::Label> lblName{*this, "lblName", kSettingNames};
    ui::ControlArray<ui::Label> lblNote{*this, "lblNote", kSettingNotes};
    ui::CommandButton cmdLess{*this, "cmdLess", {396, 154, 26, 26}, "-", look::kRateButton};
    ui::Label lblVolume{*this, "lblVolume", {466, 144, 120, 46}, "10", look::kPips};
    ui::CommandButton cmdMore{*this, "cmdMore", {630, 154, 26, 26}, "+", look::kRateButton};
    ui::ControlArray<ui::CommandButton> cmdValue{*this, "cmdValue", kSettingValues};
    // What is wrong with the file.
    ui::Label lblTrouble{*this, "lblTrouble", {124, 430, 552, 28}, "", look::kTrouble};
    ui::CommandButton cmdAsDelivered{*this, "cmdAsDelivered", {332, 467, 170, 40}, "As delivered", look::kButton};
    ui::CommandButton cmdDone{*this, "cmdDone", {516, 467, 150, 40}, "Done", look::kButton};
};

}  // namespace screens
