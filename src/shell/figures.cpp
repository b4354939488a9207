#include "shell/figures.h"

#include <algorithm>
#include <array>

namespace shell {

namespace {

// By core::Level; what went beyond it can only have been hard.
constexpr std::array<std::string_view, 3> kLevels{"Easy", "Normal", "Hard"};

}  // namespace

void ShowFigures(screens::FiguresForm& sheet, const core::GameState& state, const core::NumberFormat& format,
                 std::string_view score)
{
    sheet.lblSBank.SetText(format.Amount(std::int64_t{state.SwissBank}));
    sheet.lblMonths.SetText(core::Digits(state.MonthsInPower));
    sheet.lblAT.SetText(core::Digits(state.AssassinationAttempts));
    sheet.lblRev.SetText(core::Digits(state.Revolutions));
    sheet.lblVictims.SetText(format.Amount(std::int64_t{state.Victims}));
    sheet.lblScore.SetText(score);
    sheet.lblLevel.SetText(
        kLevels[static_cast<std::size_t>(std::min<std::int64_t>(state.Difficulty, core::kHard))]);
}

}  // namespace shell
