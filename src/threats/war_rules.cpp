#include "threats/war_rules.h"

#include "core/budget.h"
#include "core/names.h"
#include "core/numbers.h"
#include "core/officers.h"
#include "core/society.h"

#include <algorithm>
#include <array>

namespace threats {

namespace {

using core::GameState;

// What the chief makes of his army, by his ability 1 .. 10.
constexpr std::array kLeadership{0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.1, 1.2, 1.3};

// By War; peace has no enemy.
constexpr std::array<core::i16 GameState::*, core::kNeighbours> kEnemies =
    std::to_array({&GameState::HermositaStrength, &GameState::FerazStrength, &GameState::DescalzaStrength});

// Opposition after a defeat.
constexpr core::PerFaction<std::int64_t> kBlame = std::to_array<std::int64_t>({5, 5, 5, 5, 5, 15, 5});

std::int64_t Enemy(const GameState& state)
{
    const auto enemy =
        static_cast<std::size_t>(std::clamp<std::int64_t>(state.War, 1, std::int64_t{core::kNeighbours})) - 1;
    return state.*kEnemies[enemy];
}

std::int64_t OurArmy(const GameState& state)
{
    const auto ability =
        static_cast<std::size_t>(std::clamp<std::int64_t>(core::Ability(state.ArmyChiefs), 1, 10)) - 1;
    return core::RoundHalfEven(core::Real(state.Strength[core::Army]) * kLeadership[ability]);
}

void BurySoldiers(GameState& state, double percent)
{
    const std::int64_t fallen = core::RoundHalfEven(core::Real(state.Population[core::Army]) / 100 * percent);
    state.Population[core::Army] -= fallen;
    state.Victims += fallen;
}

}  // namespace

bool WarIsWon(GameState& state, core::Chance& chance)
{
    std::int64_t ours = OurArmy(state);
    std::int64_t theirs = Enemy(state);
    state.War = 0;
    state.ExpState = core::PeacefulExpState(state);
    const bool stronger = ours > theirs;
    ours += chance.Between(1, stronger ? 15 : 10);
    theirs += chance.Between(1, stronger ? 10 : 15);
    return ours > theirs;
}

void TakeVictory(GameState& state)
{
    state.Opposition[core::Army] -= 10;
    state.AmericanHostility -= 10;
    BurySoldiers(state, 1.5);
}

void TakeDefeat(GameState& state)
{
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        state.Opposition[f] += kBlame[f];
    }
    state.Strength[core::Army] = core::ChangedByPercent(state.Strength[core::Army], -20);
    state.AmericanHostility += 20;
    BurySoldiers(state, 3);
    core::FixNum(state);
}

}  // namespace threats
