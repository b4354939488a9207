// frmStrip: the edge of the desk. Month, money and favour side by side, and whom to fear.
//
// It stands right in front of the backdrop and takes no input. One line of help or of refusal may stand where the
// warnings are.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kStripPlace{0, 562, 800, 38};
inline constexpr int kStripWarnings = 3;
inline constexpr ui::Rect kStripWarningCell{488, 566, 308, 32};
inline constexpr int kFavourParts = 4;

// Captions above, values below.
constexpr ui::Rect StripCaption(int left, int right) { return {left, 567, right - left, 16}; }
constexpr ui::Rect StripValue(int left, int right) { return {left, 579, right - left, 21}; }
// A part of the bar of favour, of which 0 .. 12 pixels are filled.
inline constexpr int kFavourPart = 12;
constexpr ui::Rect FavourPart(int part) { return {421 + 13 * part, 586, kFavourPart, 7}; }

inline constexpr auto kStripDecor = [] {
    using Kind = ui::Decor::Kind;
    std::array<ui::Decor, 7 + kFavourParts> decor{
        ui::Decor{.kind = Kind::Fill, .rect = {0, 562, 800, 2}, .color = look::kBrass},
        ui::Decor{.kind = Kind::Fill, .rect = {0, 565, 800, 1}, .color = look::kSecretFine},
        ui::Decor{.kind = Kind::Fill, .rect = {420, 585, 54, 9}, .color = look::kStripCaptionInk},
    };
    std::size_t next = 3;
    for (const int x : {58, 206, 360, 478}) {
        decor[next++] = {Kind::Hairline, {x, 570, 1, 26}};
    }
    for (int part = 0; part < kFavourParts; ++part) {
        decor[next++] = {.kind = Kind::Fill, .rect = FavourPart(part), .color = look::kSecret};
    }
    return decor;
}();

inline constexpr auto kFavourRows = [] {
    std::array<ui::ElementRow, kFavourParts> rows{};
    for (int part = 0; part < kFavourParts; ++part) {
        rows[static_cast<std::size_t>(part)] = {
            part, FavourPart(part), "", &look::kShape, {.back = look::kGreen}};
    }
    return rows;
}();

inline constexpr auto kStripWarningRows = [] {
    std::array<ui::ElementRow, kStripWarnings> rows{};
    for (int i = 0; i < kStripWarnings; ++i) {
        rows[static_cast<std::size_t>(i)] = {
            i, {488 + 103 * i, 572, 102, 20}, "", &look::kStripWarning, {.visible = false}};
    }
    return rows;
}();

struct FrmStrip : ui::Form {
    explicit FrmStrip(ui::Stage& stage)
        : Form(stage, {.name = "frmStrip", .rect = kStripPlace, .decor = kStripDecor, .back = look::kSecret,
                       .opaque = true, .own = true, .fixture = true})
    {}

    ui::Label Label1{*this, "Label1", StripCaption(10, 58), "Month", look::kStripCaption};
    ui::Label lblMonth{*this, "lblMonth", StripValue(10, 58), "1", look::kStripWord};
    ui::Label Label2{*this, "Label2", StripCaption(62, 196), "Treasury", look::kStripCaptionRight};
    ui::Label lblMoney{*this, "lblMoney", StripValue(60, 196), "0", look::kStripValue};
    ui::Label Label3{*this, "Label3", StripCaption(208, 350), "Balance, coming month", look::kStripCaptionRight};
    ui::Label lblBalance{*this, "lblBalance", StripValue(208, 336), "0", look::kStripValue};
    ui::Label Label4{*this, "Label4", StripCaption(370, 478), "Americans' favour", look::kStripCaption};
    ui::Label lblFavour{*this, "lblFavour", StripValue(370, 420), "0%", look::kStripWord};
    ui::ControlArray<ui::Shape> shpFavour{*this, "shpFavour", kFavourRows};
    ui::ControlArray<ui::Label> lblWarning{*this, "lblWarning", kStripWarningRows};
    ui::Label lblLine{*this, "lblLine", kStripWarningCell, "", look::kStripLine};
};

}  // namespace screens
