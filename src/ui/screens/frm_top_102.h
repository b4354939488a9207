// frmTop102: the hall of fame. Ten sentences on one full sheet; a click anywhere leaves it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr int kHallRows = 10;
inline constexpr ui::Rect kHallSheet{8, 8, 779, 579};

inline constexpr int HallRowTop(int place)
{
    return 63 + 522 * place / 10;
}

inline constexpr std::array<std::string_view, kHallRows> kHallRanks{
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"};

inline constexpr auto kHallRankRows = [] {
    std::array<ui::ElementRow, kHallRows> rows{};
    for (int i = 0; i < kHallRows; ++i) {
        rows[static_cast<std::size_t>(i)] = {
            i, {18, HallRowTop(i), 60, 52}, kHallRanks[static_cast<std::size_t>(i)], &look::kHallRank, {}};
    }
    return rows;
}();

inline constexpr auto kHallSentenceRows = [] {
    std::array<ui::ElementRow, kHallRows> rows{};
    for (int i = 0; i < kHallRows; ++i) {
        rows[static_cast<std::size_t>(i)] = {i, {94, HallRowTop(i), 675, 52}, "", &look::kHallSentence, {}};
    }
    return rows;
}();

// Three on either side of the title.
inline constexpr std::array kHallStars{156, 182, 208, 574, 600, 626};

// The sheet, its band with an emblem and stars at either end, every second row striped, a rule behind each rank.
inline constexpr auto kHallDecor = [] {
    std::array<ui::Decor, 3 + kHallStars.size() + kHallRows / 2 + kHallRows> decor{
        ui::Decor{ui::Decor::Kind::PaperSheet, kHallSheet},
        ui::Decor{ui::Decor::Kind::Band, {8, 8, 779, 46}},
        ui::Decor{ui::Decor::Kind::Picture, {18, 14, 34, 34}, "images/emblem.bmp"},
    };
    std::size_t next = 3;
    for (const int left : kHallStars) {
        decor[next++] = {.kind = ui::Decor::Kind::Star, .rect = {left, 23, 18, 18}, .color = look::kSun};
    }
    for (int i = 1; i < kHallRows; i += 2) {
        decor[next++] = {ui::Decor::Kind::Stripe, {16, HallRowTop(i), 763, 52}};
    }
    for (int i = 0; i < kHallRows; ++i) {
        decor[next++] = {
            .kind = ui::Decor::Kind::Fill, .rect = {80, HallRowTop(i) + 7, 2, 38}, .color = look::kBrass};
    }
    return decor;
}();

struct FrmTop102 : ui::Form {
    explicit FrmTop102(ui::Stage& stage)
        : Form(stage, {.name = "frmTop102", .rect = ui::kSpace, .decor = kHallDecor, .opaque = true})
    {}

    ui::Label Label6{*this, "Label6", {150, 9, 496, 44}, "TOP-TEN  BASTARDS", look::kHallTitle};
    // What went wrong with the list, pasted over its title; the banner is covered by this screen.
    ui::Label Label3{*this, "Label3", {64, 12, 668, 38}, "", look::kTrouble,
        {.visible = false, .back = look::kPaper}};
    ui::ControlArray<ui::Label> Label2{*this, "Label2", kHallRankRows};
    ui::ControlArray<ui::Label> Label1{*this, "Label1", kHallSentenceRows};
};

}  // namespace screens
