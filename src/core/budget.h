// Rules of the state's money: what the taxes bring, what the state costs. Dollars a month.
#pragma once

#include "core/game_state.h"

#include <cstdint>

namespace core {

// TaxIncome = (IncomePerPerson x Population) / 100 x TaxRate for the five taxed factions: the product is
// exact, the rest in double precision, rounded half to even. TaxIncomeTotal is their sum.
void UpdateTaxIncome(GameState& state);

// ExpTotal = the ten budget lines, war expenses included.
void UpdateExpTotal(GameState& state);

// What every month brings in (positive) or costs (negative), from the totals as they are stored.
std::int64_t Balance(const GameState& state);

// The same, counted anew from the rates and lines as they stand; changes nothing.
std::int64_t BalanceNow(const GameState& state);

// The state's own expenses in peace: (Difficulty + 3) x TotalPopulation.
std::int64_t PeacefulExpState(const GameState& state);

// 5500 dollars for each soldier of the personal army.
std::int64_t PersonalArmyPay(const GameState& state);

}  // namespace core
