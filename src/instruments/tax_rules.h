// Rules of the tax rates: what a step up or down does to a faction, and the range that rates keep to.
#pragma once

#include "core/game_state.h"

namespace instruments {

// One percent up, to 9 at most: Strength - 1, Opposition + 2 x the new rate. Whether there was a step.
bool RaiseTax(core::GameState& state, core::Group faction);

// One percent down, to 1 at least: Strength + 1, Opposition - 2 x the old rate, so that a rise and a cut
// cancel each other. Whether there was a step.
bool CutTax(core::GameState& state, core::Group faction);

// The five taxed factions: rates above 9 become 9, strengths below 1 become 1.
void KeepTaxesInRange(core::GameState& state);

}  // namespace instruments
