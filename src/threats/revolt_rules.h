// Rules of the revolts from outside the factions: the guerrillas' and the prisoners'.
#pragma once

#include "core/game_state.h"

#include <cstdint>

namespace threats {

// What the people's mood lends to those who rise: a fifth of their mean opposition in percent, half to even.
std::int64_t UnrestBonus(const core::GameState& state);

// Whether they are strong enough to rise: the guerrillas from strength 15 on, the prisoners from 12.
bool GuerrillasAreReady(const core::GameState& state);
bool PrisonersAreReady(const core::GameState& state);

// Each changes the record as the revolt breaks out and returns the rebels' share of the country's strength
// in whole percent, taken before anybody gains or loses.
//
//     RevolutionaryStrength = (Strength of those who rise + UnrestBonus) x 1.2, 1.3 or 1.5 by Difficulty,
//         half to even; with the prisoners fight the guerrillas, who add their Strength
//     the five taxed factions gain 8, 8, 5, 7 and 7 Strength; those who join, 5 Opposition
//     of the guerrillas die (their Strength after its loss + 5) percent, of the prisoners (1 + 5) percent
std::int64_t RaiseGuerrillas(core::GameState& state);
std::int64_t RaisePrisoners(core::GameState& state);

}  // namespace threats
