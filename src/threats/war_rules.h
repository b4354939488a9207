// Rules of a war against a neighbour: it is decided in one stroke.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

namespace threats {

// The army counts Strength[Army] x (0.3 + 0.1 for each point of its chief's ability), half to even. The side
// that is strictly stronger is reinforced by 1 .. 15, the other by 1 .. 10; of equals the enemy is the
// stronger. A tie is a defeat. The war and its expenses are over either way.
bool WarIsWon(core::GameState& state, core::Chance& chance);

// What it did to the country: of the army 1.5 percent fall in a victory, 3 in a defeat, half to even.
void TakeVictory(core::GameState& state);
void TakeDefeat(core::GameState& state);

}  // namespace threats
