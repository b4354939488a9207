#include "core/budget.h"

#include "core/numbers.h"

namespace core {

namespace {

std::int64_t TaxIncomeOf(const GameState& state, std::size_t faction)
{
    const std::int64_t income = state.IncomePerPerson[faction] * state.Population[faction];
    return RoundHalfEven(static_cast<double>(income) / 100 *
                         static_cast<double>(std::int64_t{state.TaxRate[faction]}));
}

std::int64_t ExpensesOf(const GameState& state)
{
    return state.ExpState + state.ExpEducation + state.ExpHealth + state.ExpAllowances + state.ExpArmy +
           state.ExpPolice + state.ExpPrisons + state.ExpUnemployment + state.ExpWar + state.ExpPersonalArmy;
}

}  // namespace

void UpdateTaxIncome(GameState& state)
{
    std::int64_t total = 0;
    for (std::size_t f = 0; f < kTaxed; ++f) {
        state.TaxIncome[f] = TaxIncomeOf(state, f);
        total += state.TaxIncome[f];
    }
    state.TaxIncomeTotal = total;
}

void UpdateExpTotal(GameState& state)
{
    state.ExpTotal = ExpensesOf(state);
}

std::int64_t BalanceNow(const GameState& state)
{
    std::int64_t balance = -ExpensesOf(state);
    for (std::size_t f = 0; f < kTaxed; ++f) {
        balance += TaxIncomeOf(state, f);
    }
    return balance;
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
