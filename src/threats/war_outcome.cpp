#include "threats/war_outcome.h"

#include "core/banner.h"
#include "threats/war_rules.h"
#include "ui/look/look.h"

namespace threats {

namespace {

constexpr std::string_view kVictory = "Mr.President, war is over. Our Army returns glorius from the battle!";
constexpr std::string_view kDefeat =
    "Mr.President, war is over. Unfortunately we have been defeated! Nobody is going to like this!";

}  // namespace

void WarOutcome::CheckVictory()
{
    const bool won = WarIsWon(state_, chance_);
    screens_.frmMonthBanner.SetBack(look::kBlack);
    screens_.frmWAR.Label1.SetText(won ? kVictory : kDefeat);
    screens_.frmWAR.Show();
    if (won) {
        TakeVictory(state_);
    } else {
        TakeDefeat(state_);
    }
    monthEnd_.EndOfTurn2();
    core::GiveBack(screens_.frmMain);
}

}  // namespace threats
