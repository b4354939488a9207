#include "shell/figures.h"

#include "core/names.h"

namespace shell {

void ShowFigures(screens::FiguresForm& sheet, const core::GameState& state, const core::NumberFormat& format,
                 std::string_view score)
{
    sheet.lblSBank.SetText(format.Amount(std::int64_t{state.SwissBank}));
    sheet.lblMonths.SetText(core::Digits(state.MonthsInPower));
    sheet.lblAT.SetText(core::Digits(state.AssassinationAttempts));
    sheet.lblRev.SetText(core::Digits(state.Revolutions));
    sheet.lblVictims.SetText(format.Amount(std::int64_t{state.Victims}));
    sheet.lblScore.SetText(score);
    sheet.lblLevel.SetText(core::kLevelNames[core::LevelIndex(state.Difficulty)]);
}

}  // namespace shell
