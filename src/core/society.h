// Rules of the people: how many there are, how strong each group is and how much the president is loved.
#pragma once

#include "core/game_state.h"

namespace core {

// Mean opposition of the people as a share of 1:
//     sum over the nine groups of (Population / 100) x Opposition, divided by TotalPopulation
// The personal army counts in TotalPopulation but opposes nobody. 0 while there are no people.
double Unpopularity(const GameState& state);

// Popularity = 100 - 100 x Unpopularity, rounded half to even, not held within 0..100.
void UpdatePopularity(GameState& state);

// TotalPopulation = the nine groups + the personal army.
void UpdateTotalPopulation(GameState& state);

// TotalStrength = the nine groups + the personal army; StrengthPct = Strength / TotalStrength x 100, the
// personal army's rounded to a whole percent. Shares stay as they were while TotalStrength is 0.
void UpdateTotalStrength(GameState& state);
void UpdateStrengthShares(GameState& state);

// Keeps every strength at its floor (1, the prisoners' 0, the personal army's own), then sums and shares.
void FixNum(GameState& state);

}  // namespace core
