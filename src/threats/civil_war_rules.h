// Rules of the civil war: what an ally costs, who wins the one battle, and who pays for having lost it.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

#include <cstdint>

namespace threats {

// The ally's price, beyond what his offer file changes. A budget line that it changes cannot be changed again
// by the president's own actions this month (ActionDone). Whole sums are paid from the Swiss bank when that
// holds all of it, else from the treasury, which may run into debt.
void PayAlly(core::GameState& state, std::int64_t faction);

// Both sides are reinforced: the stronger one by 1 .. 15, the other by 1 .. 10; of equals the rebels count as
// stronger. The president wins a tie.
bool BattleIsWon(core::GameState& state, core::Chance& chance);

// What the revolting factions lose: Strength by the table, 10 points of Opposition, between 0.2 and 1.1 percent
// of the taxed factions' people; and five months before they may rise again, unless outsiders began it.
void PunishRebels(core::GameState& state, core::Chance& chance);

// Between 20 and 30 percent of the personal army fall; its Strength is a hundredth of its soldiers.
void BuryGuards(core::GameState& state, core::Chance& chance);

}  // namespace threats
