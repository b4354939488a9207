// frmTop102: the hall of fame. Ten sentences on one full sheet; a click anywhere leaves it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr int kHallRows = 10;
inline constexpr ui::Rect kHallSheet{8, 8, 779, 579};

// The rows fill the sheet, or stand a little closer above the foot line.
inline constexpr int kHallRowsHeight = 522;
inline constexpr int kHallShortHeight = 489;
constexpr int HallRowTop(int place, int height = kHallRowsHeight)
{
    return 63 + height * place / kHallRows;
}
constexpr int HallRowHeight(int height) { return height / kHallRows; }
constexpr ui::Rect HallRank(int place, int height) { return {18, HallRowTop(place, height), 60, HallRowHeight(height)}; }
constexpr ui::Rect HallSentence(int place, int height)
{
    return {94, HallRowTop(place, height), 675, HallRowHeight(height)};
}
constexpr ui::Rect HallRow(int place, int height) { return {16, HallRowTop(place, height), 763, HallRowHeight(height)}; }
constexpr ui::Rect HallTab(int place, int height) { return {16, HallRowTop(place, height), 19, HallRowHeight(height)}; }

inline constexpr std::array<std::string_view, kHallRows> kHallRanks{
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};

inline constexpr auto kHallRankRows = [] {
    std::array<ui::ElementRow, kHallRows> rows{};
    for (int i = 0; i < kHallRows; ++i) {
        rows[static_cast<std::size_t>(i)] = {
            i, HallRank(i, kHallRowsHeight), kHallRanks[static_cast<std::size_t>(i)], &look::kHallRank, {}};
    }
    return rows;
}();

inline constexpr auto kHallSentenceRows = [] {
    std::array<ui::ElementRow, kHallRows> rows{};
    for (int i = 0; i < kHallRows; ++i) {
        rows[static_cast<std::size_t>(i)] = {i, HallSentence(i, kHallRowsHeight), "", &look::kHallSentence, {}};
    }
    return rows;
}();

// Three on either side of the title.
inline constexpr std::array kHallStars{156, 182, 208, 574, 600, 626};

// The sheet, its band with an emblem and stars at either end, every second row striped, a rule behind each rank. With
// a foot line the rows are lower.
constexpr auto HallDecor(int height)
{
    std::array<ui::Decor, 5 + kHallStars.size() + kHallRows / 2 + kHallRows> decor{
        ui::Decor{ui::Decor::Kind::PaperSheet, kHallSheet},
        ui::Decor{ui::Decor::Kind::Band, {8, 8, 779, 46}},
        ui::Decor{ui::Decor::Kind::Picture, {18, 14, 34, 34}, "images/emblem.bmp"},
    };
    std::size_t next = 3;
    for (const int left : kHallStars) {
        decor[next++] = {.kind = ui::Decor::Kind::Star, .rect = {left, 23, 18, 18}, .color = look::kSun};
    }
    for (int i = 1; i < kHallRows; i += 2) {
        decor[next++] = {ui::Decor::Kind::Stripe, HallRow(i, height)};
    }
    for (int i = 0; i < kHallRows; ++i) {
        decor[next++] = {.kind = ui::Decor::Kind::Fill,
                         .rect = {80, HallRowTop(i, height) + 7, 2, HallRowHeight(height) - 14},
                         .color = look::kBrass};
    }
    const bool foot = height == kHallShortHeight;
    constexpr ui::Rect kNowhere{9, 551, 1, 1};
    decor[next++] = {.kind = ui::Decor::Kind::Fill,
                     .rect = foot ? ui::Rect{9, 552, 777, 34} : kNowhere,
                     .color = look::kInk};
    decor[next++] = {.kind = ui::Decor::Kind::Fill,
                     .rect = foot ? ui::Rect{9, 551, 777, 2} : kNowhere,
                     .color = foot ? look::kOchre : look::kInk};
    return decor;
}
inline constexpr auto kHallDecor = HallDecor(kHallRowsHeight);
inline constexpr auto kHallFootDecor = HallDecor(kHallShortHeight);

struct FrmTop102 : ui::Form {
    explicit FrmTop102(ui::Stage& stage)
        : Form(stage, {.name = "frmTop102", .rect = ui::kSpace, .decor = kHallDecor, .opaque = true})
    {}

    ui::Label Label6{*this, "Label6", {150, 9, 496, 44}, "TOP-TEN  BASTARDS", look::kHallTitle};
    // What went wrong with the list, pasted over its title; the banner is covered by this screen.
    ui::Label Label3{*this, "Label3", {64, 12, 668, 38}, "", look::kTrouble,
        {.visible = false, .back = look::kPaper}};
    // His own row, under its words.
    ui::Shape Shape1{*this, "Shape1", HallRow(0, kHallRowsHeight), "", look::kShape,
        {.visible = false, .back = look::kSun}};
    ui::Shape Shape2{*this, "Shape2", HallTab(0, kHallRowsHeight), "", look::kShape,
        {.visible = false, .back = look::kStampRed}};
    ui::Label Label4{*this, "Label4", HallTab(0, kHallRowsHeight), "Y\nO\nU", look::kHallYou, {.visible = false}};
    ui::ControlArray<ui::Label> Label2{*this, "Label2", kHallRankRows};
    ui::ControlArray<ui::Label> Label1{*this, "Label1", kHallSentenceRows};
    // Who is not among the ten reads why.
    ui::Label Label5{*this, "Label5", {68, 553, 700, 32}, "", look::kHallFoot,
        {.visible = false, .back = look::kInk, .mark = ui::Mark::Down}};
    // The challenges that he has met, beside it.
    ui::Label lblStamp{*this, "lblStamp", {452, 556, 326, 26}, "", look::kHallStamp,
        {.visible = false, .back = look::kStampRed}};
};

}  // namespace screens
