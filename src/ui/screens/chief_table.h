// The table of eleven officers that frmPolc and frmArmyC share: row 0 the chief in office, then the ten
// candidates. Element r of Label1 is row r's name, r + 11 its ability, r + 22 its ambition.
//
// Only names can be picked; the routine that owns the screen makes those a stop for keys that may be.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr int kChiefRows = 11;
inline constexpr int kChiefAbility = 11;   // the first element of the column
inline constexpr int kChiefAmbition = 22;
using ChiefCells = std::array<ui::ElementRow, 33>;

inline constexpr ui::Rect kChiefsSheet{40, 58, 715, 530};
constexpr int ChiefLine(int row) { return 134 + (376 * row + 5) / 10; }
constexpr ui::Rect ChiefPlace(int row, int left, int right)
{
    return {left, ChiefLine(row), right - left, ChiefLine(row + 1) - ChiefLine(row)};
}

inline constexpr std::array kChiefsDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kChiefsSheet},
    ui::Decor{ui::Decor::Kind::Band, {40, 58, 715, 38}},
    ui::Decor{ui::Decor::Kind::Picture, {41, 100, 176, 487}, "images/officer.bmp"},
    ui::Decor{ui::Decor::Kind::Rule, {232, 130, 509, 2}},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = ChiefPlace(0, 232, 741), .color = look::kFoot},
    ui::Decor{ui::Decor::Kind::Rule, {232, ChiefLine(1) - 2, 509, 2}},
    ui::Decor{ui::Decor::Kind::Stripe, ChiefPlace(1, 232, 741)},
    ui::Decor{ui::Decor::Kind::Stripe, ChiefPlace(3, 232, 741)},
    ui::Decor{ui::Decor::Kind::Stripe, ChiefPlace(5, 232, 741)},
    ui::Decor{ui::Decor::Kind::Stripe, ChiefPlace(7, 232, 741)},
    ui::Decor{ui::Decor::Kind::Stripe, ChiefPlace(9, 232, 741)},
    ui::Decor{ui::Decor::Kind::Rule, {232, ChiefLine(kChiefRows), 509, 2}},
};

constexpr ChiefCells ChiefElements()
{
    ChiefCells rows{};
    for (int row = 0; row < kChiefRows; ++row) {
        const auto at = static_cast<std::size_t>(row);
        rows[at] = {row, ChiefPlace(row, 246, 517), "", &look::kOfficer, {.row = ChiefPlace(row, 232, 741)}};
        rows[at + kChiefAbility] = {row + kChiefAbility, ChiefPlace(row, 517, 629), "", &look::kPips};
        rows[at + kChiefAmbition] = {row + kChiefAmbition, ChiefPlace(row, 629, 741), "", &look::kPips,
            {.back = look::kStampRed}};
    }
    return rows;
}
inline constexpr ChiefCells kChiefCells = ChiefElements();

struct ChiefTable : ui::Form {
    // The key says what the two figures behind a chief's name are, and what they do.
    ChiefTable(ui::Stage& stage, std::string_view name, std::string_view title, std::string_view key)
        : Form(stage, {.name = name, .rect = kChiefsSheet, .decor = kChiefsDecor}),
          Label5{*this, "Label5", {56, 63, 640, 30}, title, look::kBandTitle},
          lblKey{*this, "lblKey", {232, 552, 509, 34}, key, look::kSmallPrint}
    {}

    ui::Label Label5;
    ui::Label lblKey;
    ui::Label Label2{*this, "Label2", {240, 106, 200, 23}, "Name", look::kColumn};
    ui::Label Label3{*this, "Label3", {517, 106, 112, 23}, "Ability", look::kColumnCenter};
    ui::Label Label4{*this, "Label4", {629, 106, 112, 23}, "Ambition", look::kColumnCenter};
    ui::ControlArray<ui::Label> Label1{*this, "Label1", kChiefCells};
};

}  // namespace screens
