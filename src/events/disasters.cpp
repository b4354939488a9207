#include "events/disasters.h"

#include "core/numbers.h"

#include <array>

namespace events {

namespace {

using core::i32;
using core::PerTaxed;

// By Workers, Peasants, Businessmen, Industrialists, Landowners.
struct Losses {
    PerTaxed<double> income;
    PerTaxed<double> people;
};

// What is left, as a factor of what was; each product is rounded once. The drought, then the hurricane.
constexpr std::array<Losses, 2> kLeft{{
    {std::to_array({0.95, 0.9, 0.97, 0.95, 0.9}), std::to_array<double>({1, 1, 1, 1, 1})},
    {std::to_array({0.95, 0.95, 0.95, 0.95, 0.95}), std::to_array({0.99, 0.98, 0.999, 0.999, 0.998})},
}};
// What the earthquake takes, in percent.
constexpr Losses kTaken{std::to_array<double>({5, 2, 3, 5, 2}),
                        std::to_array<double>({2, 0.8, 0.5, 0.5, 0.2})};

void Scale(i32& value, double factor)
{
    value = core::RoundHalfEven(static_cast<double>(std::int64_t{value}) * factor);
}

void Take(i32& value, double percent)
{
    value = core::ChangedByPercent(value, -percent);
}

void ApplyLosses(const Losses& losses, void (*apply)(i32&, double), core::GameState& state)
{
    for (std::size_t f = 0; f < core::kTaxed; ++f) {
        apply(state.IncomePerPerson[f], losses.income[f]);
        apply(state.Population[f], losses.people[f]);
    }
}

// Percentage points, by faction.
constexpr core::PerFaction<std::int64_t> kRelief = std::to_array<std::int64_t>({7, 10, 6, 4, 5, 9, 8});

}  // namespace

void ApplyDisaster(std::size_t disaster, core::GameState& state)
{
    if (disaster <= kLeft.size()) {
        ApplyLosses(kLeft.at(disaster - 1), Scale, state);
    } else {
        ApplyLosses(kTaken, Take, state);
    }
}

void ApplyGoodNews(core::GameState& state)
{
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        state.Opposition[f] -= kRelief[f];
    }
}

}  // namespace events
