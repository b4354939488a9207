// frmSlip: the secretary's slip, what a month has changed. A click anywhere puts it away.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kSlipPaper{96, 376, 600, 182};
inline constexpr int kSlipRows = 8;   // the seven factions and the guerrillas
inline constexpr int kSlipMoney = 2;  // treasury, balance
inline constexpr int kSlipLines = 2;

// Two columns of four; the third is the money's.
struct SlipRow {
    ui::Rect name, value, change;
};
constexpr SlipRow SlipRowAt(int row)
{
    const int x = kSlipPaper.left + 10 + 196 * (row / 4);
    const int y = kSlipPaper.top + 38 + 21 * (row % 4);
    return {{x, y, 124, 21}, {x + 94, y, 40, 21}, {x + 136, y, 58, 21}};
}
constexpr ui::Rect SlipMoneyValue(int row) { return {584, 414 + 42 * row, 96, 21}; }
constexpr ui::Rect SlipMoneyChange(int row) { return {548, 435 + 42 * row, 132, 21}; }

inline constexpr std::array kSlipDecor{
    ui::Decor{ui::Decor::Kind::TornPaper, kSlipPaper},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {97, 407, 598, 2}, .color = look::kHeading},
    ui::Decor{ui::Decor::Kind::Hairline, {489, 416, 1, 80}},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {112, 502, 568, 1}, .color = look::kInk},
};

template <std::size_t kSize, class Place>
constexpr std::array<ui::ElementRow, kSize> SlipElements(const Place& place, const ui::TextStyle& style,
                                                         const std::array<std::string_view, kSize>& texts = {})
{
    std::array<ui::ElementRow, kSize> rows{};
    for (std::size_t i = 0; i < kSize; ++i) {
        rows[i] = {static_cast<int>(i), place(static_cast<int>(i)), texts[i], &style, {}};
    }
    return rows;
}

inline constexpr std::array<std::string_view, kSlipRows> kSlipNames{
    "Workers", "Peasants", "Businessmen", "Industrialists", "Landowners", "Army", "Police", "Guerrillas"};
inline constexpr auto kSlipNameRows =
    SlipElements<kSlipRows>([](int i) { return SlipRowAt(i).name; }, look::kSlipName, kSlipNames);
inline constexpr auto kSlipValueRows =
    SlipElements<kSlipRows>([](int i) { return SlipRowAt(i).value; }, look::kSlipValue);
inline constexpr auto kSlipChangeRows =
    SlipElements<kSlipRows>([](int i) { return SlipRowAt(i).change; }, look::kSlipChange);
inline constexpr auto kSlipMoneyRows = SlipElements<kSlipMoney>(SlipMoneyValue, look::kSlipValue);
inline constexpr auto kSlipMoneyChangeRows = SlipElements<kSlipMoney>(SlipMoneyChange, look::kSlipMoneyChange);
inline constexpr auto kSlipLineRows =
    SlipElements<kSlipLines>([](int i) { return ui::Rect{108, 508 + 21 * i, 576, 21}; }, look::kSlipLine);

struct FrmSlip : ui::Form {
    explicit FrmSlip(ui::Stage& stage)
        : Form(stage, {.name = "frmSlip", .rect = kSlipPaper, .decor = kSlipDecor, .own = true})
    {
        onClick = [this] { Hide(); };
    }

    ui::Label lblTitle{*this, "lblTitle", {112, 382, 84, 26}, "MONTH", look::kSlipTitle};
    ui::Label Label1{*this, "Label1", {200, 384, 440, 22}, "from your secretary, with the usual respect",
        look::kSlipNote};
    ui::ControlArray<ui::Label> Label2{*this, "Label2", kSlipNameRows};
    ui::ControlArray<ui::Label> lblValue{*this, "lblValue", kSlipValueRows};
    ui::ControlArray<ui::Label> lblChange{*this, "lblChange", kSlipChangeRows};
    ui::Label Label3{*this, "Label3", {500, 414, 84, 21}, "Treasury", look::kSlipPlain};
    ui::Label Label4{*this, "Label4", {500, 456, 84, 21}, "Balance", look::kSlipPlain};
    ui::ControlArray<ui::Label> lblMoney{*this, "lblMoney", kSlipMoneyRows};
    ui::ControlArray<ui::Label> lblMoneyChange{*this, "lblMoneyChange", kSlipMoneyChangeRows};
    ui::ControlArray<ui::Label> lblLine{*this, "lblLine", kSlipLineRows};
};

}  // namespace screens
