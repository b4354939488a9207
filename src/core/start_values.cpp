#include "core/start_values.h"

#include "core/budget.h"
#include "core/society.h"

#include <algorithm>

namespace core {

namespace {

// A value that may differ by level: Easy, Normal, Hard.
using ByLevel = PerLevel<std::int64_t>;

constexpr ByLevel Same(std::int64_t value)
{
    return {value, value, value};
}

struct GroupStart {
    Group group;
    ByLevel strength;
    ByLevel opposition;  // percent
    std::int64_t population;
};

// clang-format off
constexpr GroupStart kGroupStarts[] = {
    // group          strength      opposition         population
    {Workers,         Same(30),     {40, 45, 50},      2'206'140},
    {Peasants,        Same(28),     {30, 40, 45},      2'997'840},
    {Businessmen,     Same(22),     {10, 15, 19},         50'020},
    {Industrialists,  Same(35),     {8, 10, 15},           4'813},
    {Landowners,      Same(40),     {5, 7, 12},           10'187},
    {Army,            Same(70),     {3, 5, 10},          119'554},
    {Police,          Same(25),     {1, 3, 8},            50'446},
    {Guerrillas,      {9, 12, 15},  {100, 1000, 100},      1'013},
    {Prisoners,       Same(1),      {100, 1000, 100},     59'987},
    {PersonalArmy,    {5, 0, 0},    {},                        0},  // its soldiers: kOwnSoldiers
};
// clang-format on
static_assert(std::size(kGroupStarts) == kGroups + 1);

constexpr ByLevel kOwnSoldiers{500, 0, 0};

struct TaxStart {
    std::int64_t income;  // dollars a person and month
    std::int64_t rate;    // percent
};
constexpr TaxStart kTaxStarts[kTaxed] = {{140, 2}, {90, 2}, {2'985, 3}, {62'331, 4}, {41'587, 4}};

constexpr std::int64_t kStartMoney = 50'000'000;
constexpr std::int64_t kPrisonerCost = 40;  // dollars a head and month

void SetPeople(GameState& state, std::size_t level)
{
    for (const GroupStart& start : kGroupStarts) {
        state.Strength[start.group] = start.strength[level];
        state.Population[start.group] = start.population;
        if (start.group < kGroups) {
            state.Opposition[start.group] = start.opposition[level];
        }
    }
    state.Population[PersonalArmy] = kOwnSoldiers[level];
    UpdateTotalPopulation(state);
    UpdateTotalStrength(state);
    const i16 notCounted =
        state.StrengthPctPersonalArmy;  // nobody counts the president's own men before FixNum
    UpdateStrengthShares(state);
    state.StrengthPctPersonalArmy = notCounted;
}

void SetTaxes(GameState& state)
{
    for (std::size_t f = 0; f < kTaxed; ++f) {
        state.IncomePerPerson[f] = kTaxStarts[f].income;
        state.TaxRate[f] = kTaxStarts[f].rate;
    }
    UpdateTaxIncome(state);
}

void SetBudget(GameState& state)
{
    state.ExpState = PeacefulExpState(state);
    state.ExpEducation = 3'571'748;
    state.ExpHealth = 3'023'649;
    state.ExpAllowances = 5'932'999;
    state.ExpArmy = 12'334'300;
    state.ExpPolice = 7'667'206;
    state.ExpPrisons = kPrisonerCost * state.Population[Prisoners];
    state.ExpUnemployment = 3'700'000;
    state.ExpWar = 0;
    state.ExpPersonalArmy = PersonalArmyPay(state);
    UpdateExpTotal(state);
}

}  // namespace

void DrawNeighbours(GameState& state, Chance& chance)
{
    state.ChiefNameSeed = chance.Between(1, 87);
    for (i16* strength : {&state.HermositaStrength, &state.FerazStrength, &state.DescalzaStrength}) {
        *strength = chance.Between(60, 85);
    }
}

void SetStartValues(GameState& state)
{
    const std::size_t level = LevelIndex(state.Difficulty);
    state.MonthsInPower = 1;
    state.InitMark = 1;
    state.Money = kStartMoney;
    state.SwissBank = 0;
    state.AmericanHostility = 50;
    SetPeople(state, level);
    SetTaxes(state);
    SetBudget(state);
}

void ClearGame(GameState& state)
{
    GameState fresh;
    fresh.DisplayModeSet = 1;
    fresh.PlayerName = "Anonymous";
    fresh.Difficulty = kNormal;
    fresh.Revolutionaries = state.Revolutionaries;
    fresh.ChoiceFaction = state.ChoiceFaction;
    fresh.AttemptStrength = state.AttemptStrength;
    fresh.AssassinSoundPlayed = state.AssassinSoundPlayed;
    state = fresh;
}

}  // namespace core
