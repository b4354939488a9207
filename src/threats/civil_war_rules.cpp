#include "threats/civil_war_rules.h"

#include "core/actions.h"
#include "core/numbers.h"

#include <array>

namespace threats {

namespace {

using core::GameState;

// A budget line that an ally has changed, and the actions that would change it back.
struct BudgetPrice {
    std::int64_t ally;  // faction number
    core::i32 GameState::*line;
    double percent;
    std::array<std::int64_t, 2> bars;  // actions; 0 = none
};
// clang-format off
constexpr BudgetPrice kBudgetPrices[] = {
    {1, &GameState::ExpEducation,     40, {core::kCutEducation, core::kRaiseEducation}},
    {1, &GameState::ExpHealth,        40, {core::kCutHealth, core::kRaiseHealth}},
    {1, &GameState::ExpUnemployment,  40, {core::kCutUnemployment, core::kRaiseUnemployment}},
    {3, &GameState::ExpAllowances,    50, {core::kCutAllowances, core::kRaiseAllowances}},
    {3, &GameState::ExpPolice,       -20, {core::kCutPoliceFunds, core::kRaisePoliceFunds}},
    {5, &GameState::ExpState,         50, {core::kAttackGuerrillas, 0}},
    {6, &GameState::ExpArmy,          50, {core::kCutArmyFunds, core::kRaiseArmyFunds}},
    {6, &GameState::ExpPolice,       -20, {core::kCutPoliceFunds, core::kRaisePoliceFunds}},
    {7, &GameState::ExpArmy,         -40, {core::kCutArmyFunds, core::kRaiseArmyFunds}},
    {7, &GameState::ExpPolice,        40, {core::kCutPoliceFunds, core::kRaisePoliceFunds}},
};
// clang-format on

struct IncomePrice {
    std::int64_t ally;
    core::Group group;
    double percent;
};
constexpr IncomePrice kIncomePrices[] = {{2, core::Peasants, 10}, {2, core::Landowners, -10}};

struct CashPrice {
    std::int64_t ally;
    std::int64_t dollars;
};
constexpr CashPrice kCashPrices[] = {{4, 50'000'000}, {5, 25'000'000}};

constexpr std::int64_t kWantsGuerrillasDead = 5;  // the landowners

// Strength that a defeated faction loses, by faction.
constexpr core::PerFaction<std::int64_t> kDefeat = std::to_array<std::int64_t>({8, 8, 5, 7, 7, 10, 5});
constexpr std::int64_t kMonthsOfPeace = 5;
constexpr std::int64_t kLessonLearned = 10;  // Opposition

void Pay(GameState& state, std::int64_t dollars)
{
    (state.SwissBank >= dollars ? state.SwissBank : state.Money) -= dollars;
}

// That many of the people, between two percentages of them, each rounded half to even by itself.
std::int64_t DrawShare(core::Chance& chance, std::int64_t people, double fewest, double most)
{
    return chance.Between(core::RoundHalfEven(core::Real(people) / 100 * fewest),
                          core::RoundHalfEven(core::Real(people) / 100 * most));
}

}  // namespace

void PayAlly(GameState& state, std::int64_t faction)
{
    for (const BudgetPrice& price : kBudgetPrices) {
        if (price.ally == faction) {
            state.*price.line = core::ChangedByPercent(state.*price.line, price.percent);
            for (const std::int64_t action : price.bars) {
                if (action != 0) {
                    state.ActionDone.at(static_cast<std::size_t>(action)) = 1;
                }
            }
        }
    }
    for (const IncomePrice& price : kIncomePrices) {
        if (price.ally == faction) {
            core::i32& income = state.IncomePerPerson[price.group];
            income = core::ChangedByPercent(income, price.percent);
        }
    }
    for (const CashPrice& price : kCashPrices) {
        if (price.ally == faction) {
            Pay(state, price.dollars);
        }
    }
    if (faction == kWantsGuerrillasDead) {
        state.GuerrillaWar = 1;
        state.War = 1;
    }
}

bool BattleIsWon(GameState& state, core::Chance& chance)
{
    const bool stronger = state.AlliedStrength > state.RevolutionaryStrength;
    state.AlliedStrength += chance.Between(1, stronger ? 15 : 10);
    state.RevolutionaryStrength += chance.Between(1, stronger ? 10 : 15);
    return state.AlliedStrength >= state.RevolutionaryStrength;
}

void PunishRebels(GameState& state, core::Chance& chance)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (state.Revolutionaries[n] != 1) {
            continue;
        }
        const std::size_t group = n - 1;
        state.Strength[group] -= kDefeat[group];
        state.Opposition[group] -= kLessonLearned;
        if (state.OutsiderRevolt == 0) {
            state.RevolutionWait[n] = kMonthsOfPeace;
        }
        if (group < core::kTaxed) {
            const std::int64_t killed = DrawShare(chance, state.Population[group], 0.2, 1.1);
            state.Victims += killed;
            state.Population[group] -= killed;
        }
    }
    state.OutsiderRevolt = 0;
}

void BuryGuards(GameState& state, core::Chance& chance)
{
    if (state.Strength[core::PersonalArmy] <= 0) {
        return;
    }
    const std::int64_t killed = DrawShare(chance, state.Population[core::PersonalArmy], 20, 30);
    state.Strength[core::PersonalArmy] =
        core::RoundHalfEven(core::Real(state.Strength[core::PersonalArmy]) - core::Real(killed) / 100);
    state.Victims += killed;
    state.Population[core::PersonalArmy] -= killed;
}

}  // namespace threats
