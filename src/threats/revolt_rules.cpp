#include "threats/revolt_rules.h"

#include "core/numbers.h"
#include "core/society.h"
#include "threats/uprising.h"

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
constexpr Revolt kGuerrillas{core::Guerrillas, 15, 5, 8};
constexpr Revolt kPrisoners{core::Prisoners, 12, 2, 5};

constexpr std::array kZeal{1.2, 1.3, 1.5};  // by Difficulty

// Strength that the taxed factions gain: what a lost civil war takes from them again.
constexpr std::array<std::int64_t, core::kTaxed> kUprising{8, 8, 5, 7, 7};
constexpr std::int64_t kJoinersHatred = 5;
constexpr std::int64_t kAlwaysCaught = 5;  // percent of those who rise, beside their strength

bool Ready(const GameState& state, const Revolt& revolt)
{
    return state.Strength[revolt.rising] >= revolt.risesAt;
}

void GatherRebels(GameState& state, const Revolt& revolt)
{
    const auto level =
        static_cast<std::size_t>(std::clamp<std::int64_t>(state.Difficulty, core::kEasy, core::kHard));
    const std::int64_t bonus = UnrestBonus(state);
    if (Ready(state, revolt)) {
        state.RevolutionaryStrength =
            core::RoundHalfEven(Real(state.Strength[revolt.rising] + bonus) * kZeal[level]);
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
    const std::int64_t killed = core::RoundHalfEven(Real(state.Population[group]) / 100 *
                                                    Real(state.Strength[group] + kAlwaysCaught));
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
        core::RoundHalfEven(PercentOf(state.RevolutionaryStrength, state.TotalStrength));
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
