#include "instruments/action_refusals.h"

#include "core/actions.h"
#include "core/numbers.h"

namespace instruments {

namespace {

constexpr std::int64_t kIslands = 3;

}  // namespace

ActionRefusal RefusedBySituation(const core::GameState& state, std::int64_t action)
{
    if (action == core::kAttackGuerrillas && state.War > 0 && state.GuerrillaWar == 0) {
        return "Mr.President, the Army is busy right now. We are in war in case you didn't notice! . . .";
    }
    if (action == core::kSellIsland && state.IslandsSold >= kIslands) {
        return "Once we had three beautiful islands, but you sold them all!";
    }
    return std::nullopt;
}

ActionRefusal RefusedAsDone(const core::GameState& state, std::int64_t action)
{
    const bool done = state.ActionDone.at(static_cast<std::size_t>(action)) == 1;
    if (done && action < core::kAskForAid) {
        return "Mr.President, you have already done that! You can try again next month.";
    }
    if (action == core::kAskForAid && state.AidWait > 0) {
        return "Mr.President, it's too early to ask for another aid. Try again in " +
               core::Digits(state.AidWait) + " months.";
    }
    if (done && action == core::kBuyHelicopter) {
        return "But Mr.President, you already have one!";
    }
    return std::nullopt;
}

}  // namespace instruments
