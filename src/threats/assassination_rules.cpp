#include "threats/assassination_rules.h"

#include "core/numbers.h"
#include "core/thresholds.h"

#include <algorithm>
#include <array>

namespace threats {

namespace {

using core::GameState;

constexpr std::int64_t kMonthsBetween = 5;
constexpr std::int64_t kDeadlyRoll = 2;
constexpr std::int64_t kGratitude = 10;  // opposition lost by those who are spared
constexpr std::size_t kSounds = 4;

// clang-format off
constexpr core::PerFaction<Plotters> kPlotters = std::to_array<Plotters>({
    // strength, divisor, executed: people, announced as, executed as
    {6,          1.2,     10, 100,          "Workers",        "Workers"},
    {5,          1.5,     10, 100,          "Peasants",       "Peasants"},
    {7,          1.5,      8,  30,          "Bussinesmen",    "Businessmen"},
    {9,          1.5,      5,  20,          "Industrialists", "Industrialist"},
    {8,          1.5,      5,  20,          "Landowners",     "Landowners"},
    {9,          1.5,     10,  40,          "Army",           "Army"},
    {10,         1.5,      5,  30,          "Police",         "Police"},
});
// clang-format on

// Opposition that an execution adds, whoever was executed. The police have seen worse.
struct Anger {
    core::Group group;
    std::int64_t opposition;
};
constexpr Anger kAngers[] = {
    {core::Workers, 5},        {core::Peasants, 5},   {core::Businessmen, 5},
    {core::Industrialists, 3}, {core::Landowners, 3}, {core::Army, 3},
};

core::u8& AttemptOf(GameState& state, std::int64_t faction)
{
    return state.AttemptStrength.at(static_cast<std::size_t>(faction))[1];
}

}  // namespace

const Plotters& PlottersOf(std::int64_t faction)
{
    return kPlotters.at(static_cast<std::size_t>(faction - 1));
}

std::int64_t DrawPlotters(const GameState& state, core::Chance& chance)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        const std::size_t group = n - 1;
        if (state.Strength[group] < core::kStrongFaction && state.Opposition[group] >= core::kPlotsAt &&
            state.AssassinWait[n] == 0 &&
            core::Real(state.Opposition[group]) / 10 > core::Real(chance.Between(6, 15))) {
            return static_cast<std::int64_t>(n);
        }
    }
    return 0;
}

void BeginAttempt(GameState& state, std::int64_t faction)
{
    AttemptOf(state, faction) = PlottersOf(faction).strength;
    state.AttackingFaction = faction;
    state.AssassinWait.at(static_cast<std::size_t>(faction)) = kMonthsBetween;
}

bool AttemptKills(GameState& state, core::Chance& chance)
{
    state.AssassinationAttempts += 1;
    const bool isFaction = state.AttackingFaction <= std::int64_t{core::kFactions};
    core::u8 danger = isFaction ? AttemptOf(state, state.AttackingFaction) : core::u8{0};
    danger += state.AssassinationAttempts;
    const core::i16 protection =
        core::RoundHalfEven(core::Real(state.Strength[core::PersonalArmy]) * 2.5 - core::Real(danger));
    state.FactionAttempts += 1;
    return chance.Draw(core::Real(protection), 1) <= kDeadlyRoll;
}

std::int64_t FactionThatTried(const GameState& state)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (state.AttemptStrength[n][1] != 0) {
            return static_cast<std::int64_t>(n);
        }
    }
    return 0;
}

std::int64_t ExecutePlotters(GameState& state, core::Chance& chance, std::int64_t faction)
{
    const Plotters& plotters = PlottersOf(faction);
    const core::Group group = core::GroupOfFaction(faction);
    state.Strength[group] = core::RoundHalfEven(core::Real(state.Strength[group]) / plotters.thinning);
    const std::int64_t executed = chance.Between(plotters.fewest, plotters.most);
    state.Victims += executed;
    state.Population[group] -= executed;
    for (const Anger& anger : kAngers) {
        state.Opposition[anger.group] += anger.opposition;
    }
    return executed;
}

void SparePlotters(GameState& state, std::int64_t faction)
{
    state.Opposition[core::GroupOfFaction(faction)] -= kGratitude;
}

void ForgetAttempts(GameState& state)
{
    for (std::size_t n = 0; n <= core::kFactions; ++n) {
        state.AttemptStrength[n].fill(0);
    }
}

std::int64_t NextSound(GameState& state, core::Chance& chance)
{
    auto* const first = state.AssassinSoundPlayed.begin() + 1;
    const auto heard = [](const core::u8& played) { return played == 1; };
    if (std::all_of(first, first + kSounds, heard)) {
        std::fill_n(first, kSounds, core::u8{0});
    }
    auto sound = static_cast<std::size_t>(chance.Between(1, std::int64_t{kSounds}));
    while (state.AssassinSoundPlayed[sound] == 1) {
        sound = sound % kSounds + 1;
    }
    state.AssassinSoundPlayed[sound] = 1;
    return static_cast<std::int64_t>(sound);
}

}  // namespace threats
