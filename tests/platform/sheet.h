// A screen of each kind of paper with a bit of everything on it.
#pragma once

#include "platform/painter.h"
#include "support/surface.h"
#include "support/temporary_folder.h"
#include "ui/look/look.h"
#include "ui/toolkit/desktop.h"

#include <array>

namespace test {

inline constexpr ui::TextStyle kRowStyle{
    .face = ui::Face::Typed, .sizes = {{{17, 26}}}, .fore = look::kInk, .ornament = ui::Ornament::Row};
inline constexpr ui::TextStyle kPipsStyle{.face = ui::Face::Typed,
                                          .align = ui::Align::Center,
                                          .sizes = {{{17, 26}}},
                                          .fore = look::kInk,
                                          .ornament = ui::Ornament::Pips};

using Kind = ui::Decor::Kind;
inline constexpr std::array kPaperDecor{
    ui::Decor{Kind::PaperSheet, {20, 58, 500, 420}, "Everything"},
    ui::Decor{Kind::Note, {300, 120, 200, 200}, "Note:"},
    ui::Decor{Kind::Stamp, {330, 270, 140, 27}, "To be signed", 8},
    ui::Decor{Kind::Rule, {36, 128, 240, 2}},
    ui::Decor{Kind::Stripe, {36, 160, 240, 30}},
    ui::Decor{Kind::DoubleRule, {36, 200, 240, 4}},
    ui::Decor{Kind::FootStrip, {21, 420, 498, 57}},
};
inline constexpr std::array kSecretDecor{
    ui::Decor{Kind::SecretSheet, {540, 70, 240, 400}, "Secret"},
    ui::Decor{Kind::SecretStamp, {580, 400, 140, 27}, "Eyes only", -8},
    ui::Decor{Kind::Seal, {620, 300, 60, 60}},
};

struct PaperScreen : ui::Form {
    explicit PaperScreen(ui::Stage& stage)
        : Form(stage, {.name = "paper", .rect = {20, 58, 500, 420}, .decor = kPaperDecor})
    {
        row.onClick = [] {};
    }

    ui::Label row{*this, "row", {50, 132, 120, 28}, "Row", kRowStyle, {.row = {36, 131, 240, 30}}};
    ui::Label pips{*this, "pips", {170, 128, 100, 34}, "7", kPipsStyle};
    ui::Label value{*this, "value", {50, 162, 100, 26}, "12,345", look::kValue, {.mark = ui::Mark::Down}};
    ui::TextBox box{*this, "box", {36, 220, 200, 36}, "Ada", look::kTyped};
    ui::CommandButton button{*this, "button", {36, 280, 150, 38}, "Proceed", look::kButton};
    ui::CommandButton danger{*this, "danger", {36, 330, 150, 38}, "End it", look::kDangerButton};
    ui::OptionButton option{*this, "option", {200, 280, 90, 26}, "Option", look::kOption};
    ui::Label opaque{*this, "opaque", {300, 380, 150, 26}, "85%", look::kValue, {.back = look::kWhite}};
};

struct SecretScreen : ui::Form {
    explicit SecretScreen(ui::Stage& stage)
        : Form(stage, {.name = "secret", .rect = {540, 70, 240, 400}, .decor = kSecretDecor})
    {}

    ui::Shape bar{*this, "bar", {560, 130, 140, 13}, "", look::kShape, {.back = look::kYellow}};
    ui::Picture picture{*this,     "picture",      {560, 160, 133, 48},
                        "Actions", look::kPicture, {.picture = "images/0b.bmp"}};
    ui::CommandButton off{*this, "off", {560, 230, 150, 38}, "Off", look::kButton, {.enabled = false}};
    ui::Label legend{
        *this, "legend", {560, 370, 200, 24}, "Trouble", look::kCaptionSecret, {.mark = ui::Mark::Disc}};
};

}  // namespace test
