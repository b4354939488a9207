#include "core/society.h"

#include "core/numbers.h"

#include <algorithm>
#include <cstdint>

namespace core {

namespace {

double Share(const GameState& state, Group group)
{
    return static_cast<double>(std::int64_t{state.Strength[group]}) /
           static_cast<double>(std::int64_t{state.TotalStrength}) * 100;
}

}  // namespace

double Unpopularity(const GameState& state)
{
    if (state.TotalPopulation == 0) {
        return 0;
    }
    double sum = 0;
    for (std::size_t g = 0; g < kGroups; ++g) {
        sum += static_cast<double>(std::int64_t{state.Population[g]}) / 100 *
               static_cast<double>(std::int64_t{state.Opposition[g]});
    }
    return sum / static_cast<double>(std::int64_t{state.TotalPopulation});
}

void UpdatePopularity(GameState& state)
{
    state.Popularity = RoundHalfEven(100 - Unpopularity(state) * 100);
}

void UpdateTotalPopulation(GameState& state)
{
    std::int64_t sum = 0;
    for (const i32& population : state.Population) {
        sum += population;
    }
    state.TotalPopulation = sum;
}

void UpdateTotalStrength(GameState& state)
{
    std::int64_t sum = 0;
    for (const i16& strength : state.Strength) {
        sum += strength;
    }
    state.TotalStrength = sum;
}

void UpdateStrengthShares(GameState& state)
{
    if (state.TotalStrength == 0) {
        return;
    }
    for (std::size_t g = 0; g < kGroups; ++g) {
        state.StrengthPct[g] = static_cast<float>(Share(state, static_cast<Group>(g)));
    }
    state.StrengthPctPersonalArmy = RoundHalfEven(Share(state, PersonalArmy));
}

void FixNum(GameState& state)
{
    for (std::size_t g = Workers; g <= Guerrillas; ++g) {
        state.Strength[g] = std::max<std::int64_t>(state.Strength[g], 1);
    }
    state.Strength[Prisoners] = std::max<std::int64_t>(state.Strength[Prisoners], 0);
    UpdateTotalStrength(state);
    UpdateStrengthShares(state);
}

}  // namespace core
