#include "threats/war_outcome.h"

#include "threats/war_rules.h"
#include "ui/look/look.h"

namespace threats {

namespace {

constexpr std::string_view kVictory = "Mr.President, war is over. Our Army returns glorius from the battle!";
constexpr std::string_view kDefeat =
    "Mr.President, war is over. Unfortunately we have been defeated! Nobody is going to like this!";

}  // namespace

bool WarOutcome::WarIsDecided()
{
    if (state_.War == 0) {
        return false;
    }
    CheckVictory();
    return true;
}

void WarOutcome::CheckVictory()
{
    const core::Who enemy = core::NeighbourOf(state_.War);
    const bool won = WarIsWon(state_, chance_);
    journal_.Add(core::Kind::War, enemy, won ? 1 : 0);
    banner_.SetBack(look::kBlack);
    dialog_.Label1.SetText(won ? kVictory : kDefeat);
    dialog_.Show();
    if (won) {
        TakeVictory(state_);
    } else {
        TakeDefeat(state_);
    }
    month_.CloseWithSecondHalf();
}

}  // namespace threats
