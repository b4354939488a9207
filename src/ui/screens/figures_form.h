// What a president has to show: seven figures on a sheet. frmHistory and frmGameLoaded are such sheets.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr ui::Rect kFiguresSheet{152, 112, 496, 340};
inline constexpr std::array kFiguresDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kFiguresSheet},
    ui::Decor{ui::Decor::Kind::Band, {152, 112, 496, 38}},
    ui::Decor{ui::Decor::Kind::Stripe, {168, 200, 464, 36}},
    ui::Decor{ui::Decor::Kind::Stripe, {168, 272, 464, 36}},
    ui::Decor{ui::Decor::Kind::Stripe, {168, 344, 464, 36}},
    ui::Decor{ui::Decor::Kind::Rule, {168, 384, 464, 2}},
    ui::Decor{ui::Decor::Kind::DoubleRule, {168, 428, 464, 4}},
};

struct FiguresForm : ui::Form {
    FiguresForm(ui::Stage& stage, std::string_view name, std::string_view title)
        : Form(stage, {.name = name, .rect = kFiguresSheet, .decor = kFiguresDecor}), title_(title)
    {}

private:
    std::string_view title_;

public:
    ui::Label Label1{*this, "Label1", {168, 115, 410, 32}, title_, look::kBandTitle};

    ui::Label Label8{*this, "Label8", {180, 164, 220, 36}, "Difficulty Level:", look::kCaption};
    ui::Label lblLevel{*this, "lblLevel", {478, 164, 142, 36}, "", look::kValue};
    ui::Label lblMonthswww{*this, "lblMonthswww", {180, 200, 220, 36}, "Months in Power:", look::kCaption};
    ui::Label lblMonths{*this, "lblMonths", {478, 200, 142, 36}, "", look::kValue};
    ui::Label Label2{*this, "Label2", {180, 236, 220, 36}, "Swiss Bank Account:", look::kCaption};
    ui::Label lblSBank{*this, "lblSBank", {478, 236, 142, 36}, "", look::kValue};
    ui::Label Label3{*this, "Label3", {180, 272, 220, 36}, "Assasination attempts:", look::kCaption};
    ui::Label lblAT{*this, "lblAT", {478, 272, 142, 36}, "", look::kValue};
    ui::Label Label4{*this, "Label4", {180, 308, 220, 36}, "Revolutions:", look::kCaption};
    ui::Label lblRev{*this, "lblRev", {478, 308, 142, 36}, "", look::kValue};
    ui::Label Label5{*this, "Label5", {180, 344, 220, 36}, "Dravik's Victims:", look::kCaption};
    ui::Label lblVictims{*this, "lblVictims", {478, 344, 142, 36}, "", look::kValue};
    ui::Label Label7{*this, "Label7", {180, 389, 220, 36}, "Total Score:", look::kCaption};
    ui::Label lblScore{*this, "lblScore", {478, 389, 142, 36}, "", look::kTotal};
};

}  // namespace screens
