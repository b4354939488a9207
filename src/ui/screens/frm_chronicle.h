// frmChronicle: the presidency month by month. Money above, nine small graphs, and the log, six lines at a time.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"
#include "ui/toolkit/graph.h"

#include <array>

namespace screens {

inline constexpr int kChronicleGraphs = 9;
inline constexpr int kChronicleLines = 6;

inline constexpr ui::Rect kChronicleSheet{12, 58, 771, 529};
inline constexpr ui::Rect kMoneyGraph{74, 148, 590, 84};

// Five in a row; the last place of the second row is the key's.
constexpr ui::Rect ChronicleCell(int i) { return {28 + 151 * (i % 5), 264 + 69 * (i / 5), 135, 63}; }
constexpr ui::Rect ChronicleName(int i)
{
    const ui::Rect cell = ChronicleCell(i);
    return {cell.left, cell.top, 92, 18};
}
constexpr ui::Rect ChronicleValue(int i)
{
    const ui::Rect cell = ChronicleCell(i);
    return {cell.left + 92, cell.top, 43, 18};
}
constexpr ui::Rect ChronicleGraph(int i)
{
    const ui::Rect cell = ChronicleCell(i);
    return {cell.left, cell.top + 18, cell.width, 45};
}
inline constexpr int kLogTop = 409;
inline constexpr int kLogLine = 21;
constexpr ui::Rect LogMonth(int line) { return {28, kLogTop + kLogLine * line, 34, kLogLine}; }
constexpr ui::Rect LogText(int line) { return {66, kLogTop + kLogLine * line, 660, kLogLine}; }

inline constexpr std::array kChronicleDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kChronicleSheet, "Chronicle of the presidency"},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {28, 258, 739, 2}, .color = look::kInk},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {28, 406, 739, 2}, .color = look::kInk},
    ui::Decor{ui::Decor::Kind::Stripe, {28, kLogTop + kLogLine, 700, kLogLine}},
    ui::Decor{ui::Decor::Kind::Stripe, {28, kLogTop + 3 * kLogLine, 700, kLogLine}},
    ui::Decor{ui::Decor::Kind::Stripe, {28, kLogTop + 5 * kLogLine, 700, kLogLine}},
};

inline constexpr std::array<ui::ElementRow, 4> kChronicleLegend{{
    {0, {316, 102, 136, 24}, "Revolt survived", &look::kSmallCaption, {.mark = ui::Mark::Flame}},
    {1, {458, 102, 90, 24}, "Attempt", &look::kSmallCaption, {.mark = ui::Mark::Sight}},
    {2, {552, 102, 66, 24}, "War", &look::kSmallCaption, {.mark = ui::Mark::Sabres}},
    {3, {622, 102, 100, 24}, "Disaster", &look::kSmallCaption, {.mark = ui::Mark::Bolt}},
}};
// What the lines across the small graphs mean.
inline constexpr std::array<ui::ElementRow, 3> kChronicleKeys{{
    {0, {667, 336, 100, 18}, "66: may revolt", &look::kSmallCaption},
    {1, {667, 356, 100, 18}, "56: may join", &look::kSmallCaption},
    {2, {667, 376, 100, 18}, "over the limit", &look::kSmallCaption},
}};
inline constexpr std::array<ui::ElementRow, 3> kChronicleSamples{{
    {0, {632, 338, 28, 13}, "", &look::kShape},
    {1, {632, 358, 28, 13}, "", &look::kShape},
    {2, {632, 378, 28, 13}, "", &look::kShape},
}};

// The places of one array of nine, or of the log's lines.
template <std::size_t kCount, class Place>
constexpr std::array<ui::ElementRow, kCount> ChronicleRows(Place place, const ui::TextStyle& style)
{
    std::array<ui::ElementRow, kCount> rows{};
    for (std::size_t i = 0; i < kCount; ++i) {
        rows[i] = {static_cast<int>(i), place(static_cast<int>(i)), "", &style, {}};
    }
    return rows;
}
inline constexpr auto kChronicleNames = ChronicleRows<kChronicleGraphs>(ChronicleName, look::kSmallCaption);
inline constexpr auto kChronicleValues = ChronicleRows<kChronicleGraphs>(ChronicleValue, look::kSmallValue);
inline constexpr auto kChronicleCurves = ChronicleRows<kChronicleGraphs>(ChronicleGraph, look::kShape);
inline constexpr auto kLogMonths = ChronicleRows<kChronicleLines>(LogMonth, look::kSmallValue);
inline constexpr auto kLogTexts = ChronicleRows<kChronicleLines>(LogText, look::kLogLine);

struct FrmChronicle : ui::Form {
    explicit FrmChronicle(ui::Stage& stage)
        : Form(stage, {.name = "frmChronicle", .rect = kChronicleSheet, .decor = kChronicleDecor, .own = true})
    {
        initialFocus = &cmdClose;
        cancelButton = &cmdClose;
    }

    ui::Label lblMoney{*this, "lblMoney", {28, 102, 56, 24}, "Money", look::kColumn};
    ui::Label lblUnit{*this, "lblUnit", {84, 102, 220, 24}, "in millions of $, by month", look::kSmallCaption};
    ui::ControlArray<ui::Label> lblLegend{*this, "lblLegend", kChronicleLegend};
    ui::Graph grfMoney{*this, "grfMoney", kMoneyGraph, "", look::kShape};
    ui::Label lblHigh{*this, "lblHigh", {24, 146, 44, 20}, "", look::kSmallValue};
    ui::Label lblLow{*this, "lblLow", {24, 222, 44, 20}, "", look::kSmallValue};
    ui::Label lblFirst{*this, "lblFirst", {74, 236, 60, 20}, "", look::kLogLine};
    ui::Label lblLast{*this, "lblLast", {604, 236, 60, 20}, "", look::kSmallValue};
    ui::Label lblSwissName{*this, "lblSwissName", {672, 148, 100, 18}, "Swiss account", look::kSmallCaption};
    ui::Label lblSwiss{*this, "lblSwiss", {666, 166, 106, 18}, "", look::kSmallValue};
    ui::Label lblTreasuryName{*this, "lblTreasuryName", {672, 196, 100, 18}, "Treasury", look::kSmallCaption};
    ui::Label lblTreasury{*this, "lblTreasury", {666, 214, 106, 18}, "", look::kSmallValue};

    ui::ControlArray<ui::Label> lblName{*this, "lblName", kChronicleNames};
    ui::ControlArray<ui::Label> lblValue{*this, "lblValue", kChronicleValues};
    ui::ControlArray<ui::Graph> grfGroup{*this, "grfGroup", kChronicleCurves};
    ui::ControlArray<ui::Graph> grfKey{*this, "grfKey", kChronicleSamples};
    ui::ControlArray<ui::Label> lblKey{*this, "lblKey", kChronicleKeys};

    ui::ControlArray<ui::Label> lblMonth{*this, "lblMonth", kLogMonths};
    ui::ControlArray<ui::Label> lblLine{*this, "lblLine", kLogTexts};
    ui::CommandButton cmdNewer{*this, "cmdNewer", {736, 414, 30, 30}, "", look::kArrowButton, {.mark = ui::Mark::Up}};
    ui::CommandButton cmdOlder{*this, "cmdOlder", {736, 460, 30, 30}, "", look::kArrowButton, {.mark = ui::Mark::Down}};
    // What stands where there are no months yet, or what is wrong with the file.
    ui::Label lblTrouble{*this, "lblTrouble", {28, 546, 620, 34}, "", look::kTrouble};
    ui::CommandButton cmdClose{*this, "cmdClose", {667, 545, 100, 34}, "Close", look::kButton};
};

}  // namespace screens
