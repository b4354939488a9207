// frmHistory: the running game's figures and what they are worth so far.
#pragma once

#include "ui/screens/figures_form.h"

namespace screens {

// How each figure counts; the level's is written by the screen's owner.
inline constexpr int kWorthRows = 7;
enum WorthRow { kWorthLevel, kWorthMonths, kWorthFortune, kWorthAttempts, kWorthRevolutions, kWorthVictims, kWorthTotal };
constexpr ui::Rect WorthPlace(int row, int width = 130) { return {346, 164 + 36 * row, width, 36}; }
inline constexpr std::array<ui::ElementRow, kWorthRows> kWorths{{
    {kWorthLevel, WorthPlace(kWorthLevel), "", &look::kSmallCaption},
    {kWorthMonths, WorthPlace(kWorthMonths), "2,000,000 each", &look::kSmallCaption},
    {kWorthFortune, WorthPlace(kWorthFortune, 60), "in full", &look::kSmallCaption},
    {kWorthAttempts, WorthPlace(kWorthAttempts), "5,000,000 each", &look::kSmallCaption},
    {kWorthRevolutions, WorthPlace(kWorthRevolutions), "10,000,000 each", &look::kSmallCaption},
    {kWorthVictims, WorthPlace(kWorthVictims), "remembered only", &look::kSmallCaption},
    {kWorthTotal, {346, 389, 130, 36}, "per 100,000", &look::kSmallCaption},
}};

struct FrmHistory : FiguresForm {
    explicit FrmHistory(ui::Stage& stage)
        : FiguresForm(stage, "frmHistory", "Mr.President's History and Score")
    {}

    ui::ControlArray<ui::Label> lblWorth{*this, "lblWorth", kWorths};
};

}  // namespace screens
