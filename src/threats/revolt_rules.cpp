#include "threats/revolt_rules.h"

#include "core/numbers.h"
#include "core/society.h"
#include "core/thresholds.h"

#include <algorithm>
#include <array>

namespace threats {

namespace {

using core::GameState;

struct Revolt {
    core::Group rising;
    std::int64_t risesAt;          // Strength
    std::size_t joining;           // factions 1 .. this
    std::int64_t guerrillasSpend;  // Strength
};
constexpr Revolt kGuerrillas{core::Guerrillas, core::kGuerrillasRiseAt, 5, 8};
constexpr Revolt kPrisoners{core::Prisoners, core::kPrisonersRiseAt, 2, 5};

constexpr core::PerLevel<double> kZeal = std::to_array({1.2, 1.3, 1.5});

// Strength that the taxed factions gain: what a lost civil war takes from them again.
constexpr core::PerTaxed<std::int64_t> kUprising = std::to_array<std::int64_t>({8, 8, 5, 7, 7});
constexpr std::int64_t kJoinersHatred = 5;
constexpr std::int64_t kAlwaysCaught = 5;  // percent of those who rise, beside their strength

bool Ready(const GameState& state, const Revolt& revolt)
{
    return state.Strength[revolt.rising] >= revolt.risesAt;
}

void GatherRebels(GameState& state, const Revolt& revolt)
{
    const std::int64_t bonus = UnrestBonus(state);
    if (Ready(state, revolt)) {
        state.RevolutionaryStrength = core::RoundHalfEven(core::Real(state.Strength[revolt.rising] + bonus) *
                                                          kZeal[core::LevelIndex(state.Difficulty)]);
    }
    if (revolt.rising == core::Prisoners) {
        state.RevolutionaryStrength += state.Strength[core::Guerrillas];
    }
    std::fill_n(state.Revolutionaries.begin() + 1, revolt.joining, core::u8{1});
}

void StirFactions(GameState& state)
{
    for (std::size_t f = 0; f < core::kTaxed; ++f) {
        state.Strength[f] += kUprising[f];
        if (state.Revolutionaries[f + 1] == 1) {
            state.Opposition[f] += kJoinersHatred;
        }
    }
}

void Shoot(GameState& state, core::Group group)
{
    const std::int64_t killed = core::RoundHalfEven(core::Real(state.Population[group]) / 100 *
                                                    core::Real(state.Strength[group] + kAlwaysCaught));
    state.Population[group] -= killed;
    state.Victims += killed;
}

std::int64_t Raise(GameState& state, const Revolt& revolt)
{
    state.Revolutions += 1;
    state.OutsiderRevolt = 1;
    GatherRebels(state, revolt);
    core::UpdateTotalStrength(state);
    const std::int64_t share =
        core::RoundHalfEven(core::PercentOf(state.RevolutionaryStrength, state.TotalStrength));
    StirFactions(state);
    state.Strength[core::Guerrillas] -= revolt.guerrillasSpend;
    Shoot(state, core::Guerrillas);
    return share;
}

}  // namespace

bool GuerrillasAreReady(const core::GameState& state)
{
    return Ready(state, kGuerrillas);
}

bool PrisonersAreReady(const core::GameState& state)
{
    return Ready(state, kPrisoners);
}

std::int64_t UnrestBonus(const GameState& state)
{
    return core::RoundHalfEven(core::Unpopularity(state) * 100 / 5);
}

std::int64_t RaiseGuerrillas(GameState& state)
{
    return Raise(state, kGuerrillas);
}

std::int64_t RaisePrisoners(GameState& state)
{
    const std::int64_t share = Raise(state, kPrisoners);
    state.Strength[core::Prisoners] = 1;
    Shoot(state, core::Prisoners);
    return share;
}

}  // namespace threats
