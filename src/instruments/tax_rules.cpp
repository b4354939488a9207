#include "instruments/tax_rules.h"

#include <algorithm>

namespace instruments {

namespace {

constexpr std::int64_t kLowestRate = 1;
constexpr std::int64_t kHighestRate = 9;
constexpr std::int64_t kOppositionPerPercent = 2;

}  // namespace

bool RaiseTax(core::GameState& state, core::Group faction)
{
    if (state.TaxRate[faction] >= kHighestRate) {
        return false;
    }
    state.Strength[faction] -= 1;
    state.TaxRate[faction] += 1;
    state.Opposition[faction] += kOppositionPerPercent * state.TaxRate[faction];
    return true;
}

bool CutTax(core::GameState& state, core::Group faction)
{
    if (state.TaxRate[faction] <= kLowestRate) {
        return false;
    }
    state.Strength[faction] += 1;
    state.Opposition[faction] -= kOppositionPerPercent * state.TaxRate[faction];
    state.TaxRate[faction] -= 1;
    return true;
}

void KeepTaxesInRange(core::GameState& state)
{
    for (std::size_t f = 0; f < core::kTaxed; ++f) {
        state.TaxRate[f] = std::min<std::int64_t>(state.TaxRate[f], kHighestRate);
        state.Strength[f] = std::max<std::int64_t>(state.Strength[f], 1);
    }
}

}  // namespace instruments
