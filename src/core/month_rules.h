// Rules of the month end, in its two halves. They show nothing; month/month.h tells the story.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

namespace core {

// The first half --------------------------------------------------------------------------------------

void ClearRevolution(GameState& state);

// What the month will bring and cost: the personal army's pay, the people, taxes and expenses.
void SettleAccounts(GameState& state);

// Whether the treasury covers the month's deficit; one that it covers exactly is covered.
bool TreasuryCovers(const GameState& state);

// Counts the month and moves the money.
void CountMonth(GameState& state);

// A police chief of ability 8 or more is too busy with himself: he gathers nothing when his ability is
// greater than a draw of 1..9. One of 10 never reports.
void DecidePoliceReport(GameState& state, Chance& chance);

// Flags, the campaign's end, Popularity and FixNum; then the opposition drifts: workers, peasants and
// businessmen by 2, 2 and 1, in a month of war by 4, 4 and 2.
void TurnMonth(GameState& state);

// The second half: waiting times, the flight to the mountains, opposition that turns into strength, and
// unpopularity that breeds opposition.
void CloseMonth(GameState& state);

}  // namespace core
