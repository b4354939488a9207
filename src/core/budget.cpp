#include "core/budget.h"

#include "core/numbers.h"

namespace core {

void UpdateTaxIncome(GameState& state)
{
    std::int64_t total = 0;
    for (std::size_t f = 0; f < kTaxed; ++f) {
        const std::int64_t income = state.IncomePerPerson[f] * state.Population[f];
        state.TaxIncome[f] = RoundHalfEven(static_cast<double>(income) / 100 *
                                           static_cast<double>(std::int64_t{state.TaxRate[f]}));
        total += state.TaxIncome[f];
    }
    state.TaxIncomeTotal = total;
}

void UpdateExpTotal(GameState& state)
{
    state.ExpTotal = state.ExpState + state.ExpEducation + state.ExpHealth + state.ExpAllowances +
                     state.ExpArmy + state.ExpPolice + state.ExpPrisons + state.ExpUnemployment +
                     state.ExpWar + state.ExpPersonalArmy;
}

std::int64_t Balance(const GameState& state)
{
    return state.TaxIncomeTotal - state.ExpTotal;
}

std::int64_t PeacefulExpState(const GameState& state)
{
    return (state.Difficulty + 3) * state.TotalPopulation;
}

std::int64_t PersonalArmyPay(const GameState& state)
{
    return 5500 * state.Population[PersonalArmy];
}

}  // namespace core
