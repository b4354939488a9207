// Rules of revolution: who starts one, who joins, how strong they are, and who gets away from it.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

#include <string>

namespace threats {

// The first faction, Workers to Police, that dares becomes RevolutionStarter: Strength at least 30, Opposition
// above 65, and Opposition / 10 greater than a draw of 1 .. 12. Then every other faction with an Opposition
// above 55 joins when a tenth of it is greater than a draw of 1 .. 10. Who has a RevolutionWait does neither,
// but draws all the same.
void DrawRevolution(core::GameState& state, core::Chance& chance);

// Adds the members' Strength to RevolutionaryStrength, sums TotalStrength anew and takes RevolutionaryPct, the
// former's share of the latter in whole percent, half to even.
void MeasureRevolution(core::GameState& state);

// What the dialog says.
std::string RevolutionMessage(const core::GameState& state);

// By helicopter it fails when RevolutionaryStrength / 10 is greater than a draw of 1 .. 30 plus the personal
// army's Strength; on foot one draw in ten, a 2 of 1 .. 10, leads across the frontier.
// Of thirty throws, those with which the helicopter arrives.
std::int64_t ThrowsThatEscape(const core::GameState& state);
bool HelicopterEscapes(const core::GameState& state, core::Chance& chance);
bool WalkEscapes(core::Chance& chance);

}  // namespace threats
