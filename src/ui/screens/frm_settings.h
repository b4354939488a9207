// frmSettings: what the player sets for all his games. A press of a value goes on to the next one.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

enum SettingRow { kSettingMute, kSettingScreen, kSettingPauses, kSettingNarration, kSettingHints, kSettingRows };

inline constexpr ui::Rect kSettingsSheet{110, 92, 580, 438};
// Line 0 is the volume's.
constexpr int SettingTop(int line) { return 138 + 52 * line; }
constexpr ui::Rect SettingName(int line) { return {136, SettingTop(line) + 3, 240, 26}; }
constexpr ui::Rect SettingNote(int line) { return {136, SettingTop(line) + 28, 250, 20}; }
constexpr ui::Rect SettingValue(int row) { return {396, SettingTop(row + 1) + 7, 260, 38}; }

inline constexpr std::array kSettingsDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kSettingsSheet, "Settings"},
    ui::Decor{ui::Decor::Kind::Stripe, {122, SettingTop(1), 556, 52}},
    ui::Decor{ui::Decor::Kind::Stripe, {122, SettingTop(3), 556, 52}},
    ui::Decor{ui::Decor::Kind::Stripe, {122, SettingTop(5), 556, 52}},
    ui::Decor{ui::Decor::Kind::FootStrip, {110, 474, 580, 56}},
};

inline constexpr std::array<ui::ElementRow, kSettingRows + 1> kSettingNames{{
    {0, SettingName(0), "Sound", &look::kTotalCaption},
    {1, SettingName(1), "Silence", &look::kTotalCaption},
    {2, SettingName(2), "Screen", &look::kTotalCaption},
    {3, SettingName(3), "Pauses", &look::kTotalCaption},
    {4, SettingName(4), "Narration", &look::kTotalCaption},
    {5, SettingName(5), "Hints", &look::kTotalCaption},
}};
inline constexpr std::array<ui::ElementRow, kSettingRows + 1> kSettingNotes{{
    {0, SettingNote(0), "Loud enough for the neighbours.", &look::kSmallCaption},
    {1, SettingNote(1), "The neighbours have written.", &look::kSmallCaption},
    {2, SettingNote(2), "The State fills what it is given.", &look::kSmallCaption},
    {3, SettingNote(3), "How long the secretary waits.", &look::kSmallCaption},
    {4, SettingNote(4), "Your deeds, told by a stranger.", &look::kSmallCaption},
    {5, SettingNote(5), "A line at the foot, for the curious.", &look::kSmallCaption},
}};
inline constexpr std::array<ui::ElementRow, kSettingRows> kSettingValues{{
    {kSettingMute, SettingValue(kSettingMute), "Off", &look::kButton},
    {kSettingScreen, SettingValue(kSettingScreen), "Full screen", &look::kButton},
    {kSettingPauses, SettingValue(kSettingPauses), "Full", &look::kButton},
    {kSettingNarration, SettingValue(kSettingNarration), "Off", &look::kButton},
    {kSettingHints, SettingValue(kSettingHints), "On", &look::kButton},
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
    ui::CommandButton cmdLess{*this, "cmdLess", {396, 152, 26, 26}, "-", look::kRateButton};
    ui::Label lblVolume{*this, "lblVolume", {466, 142, 120, 46}, "10", look::kPips};
    ui::CommandButton cmdMore{*this, "cmdMore", {630, 152, 26, 26}, "+", look::kRateButton};
    ui::ControlArray<ui::CommandButton> cmdValue{*this, "cmdValue", kSettingValues};
    // What is wrong with the file.
    ui::Label lblTrouble{*this, "lblTrouble", {124, 450, 552, 24}, "", look::kTrouble};
    ui::CommandButton cmdAsDelivered{*this, "cmdAsDelivered", {332, 481, 170, 40}, "As delivered", look::kButton};
    ui::CommandButton cmdDone{*this, "cmdDone", {516, 481, 150, 40}, "Done", look::kButton};
};

}  // namespace screens
