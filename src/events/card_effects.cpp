#include "events/card_effects.h"

#include "core/actions.h"
#include "core/numbers.h"

#include <array>
#include <cstddef>

namespace events {

namespace {

using core::Army;
using core::Businessmen;
using core::ChangedByPercent;
using core::GameState;
using core::Group;
using core::Guerrillas;
using core::i32;
using core::Industrialists;
using core::Landowners;
using core::Peasants;
using core::PersonalArmy;
using core::Prisoners;
using core::RoundHalfEven;
using core::Workers;

constexpr std::int64_t kPrisonerPay = 40;  // dollars a month each
constexpr std::int64_t kRecruitPay = 7000;

double People(const GameState& state, Group group)
{
    return static_cast<double>(std::int64_t{state.Population[group]});
}

// Deeds ------------------------------------------------------------------------------------------------

void SellIsland(GameState& state)
{
    state.Money += 150'000'000;
    state.IslandsSold += 1;
}

// The first month is paid better than those that follow.
void RecruitPersonalArmy(GameState& state)
{
    state.Strength[PersonalArmy] += 5;
    state.Population[PersonalArmy] += 500;
    state.ExpPersonalArmy = state.Population[PersonalArmy] * kRecruitPay;
}

void RunCampaign(GameState& state)
{
    state.Money -= 5'000'000;
}

// State expenses rise by half, and until the month's end the army is at war with its own mountains.
void MarchIntoTheMountains(GameState& state)
{
    state.ExpState = ChangedByPercent(state.ExpState, 50);
    state.GuerrillaWar = 1;
    state.War = 1;
}

// Killed: (their strength + 5) percent of the guerrillas. Lost: 0.8 percent of the army.
void AttackGuerrillas(GameState& state)
{
    MarchIntoTheMountains(state);
    const std::int64_t killed = RoundHalfEven(
        People(state, Guerrillas) / 100 * static_cast<double>(std::int64_t{state.Strength[Guerrillas]} + 5));
    state.Population[Guerrillas] -= killed;
    const std::int64_t lost = RoundHalfEven(People(state, Army) / 100 * 0.8);
    state.Population[Army] -= lost;
    state.Victims += killed + lost;
}

void EmptyPrisons(GameState& state)
{
    state.ExpPrisons = 0;
    state.Strength[Prisoners] = 0;
    state.Population[Prisoners] = 0;
    state.Opposition[Prisoners] = 0;
}

void ExecutePrisoners(GameState& state)
{
    state.Victims += state.Population[Prisoners];
    EmptyPrisons(state);
}

struct Share {
    Group group;
    double percent;  // of the prisoners
};
constexpr Share kReleased[] = {{Workers, 40}, {Peasants, 40}, {Guerrillas, 15}, {Army, 5}};

// Each sum is rounded on its own, so a prisoner or two may get lost on the way.
void ReleasePrisoners(GameState& state)
{
    const double prisoners = People(state, Prisoners);
    for (const Share& share : kReleased) {
        state.Population[share.group] =
            RoundHalfEven(prisoners / 100 * share.percent + People(state, share.group));
    }
    EmptyPrisons(state);
}

struct Arrest {
    Group group;
    std::int64_t people;
};
constexpr Arrest kArrests[] = {
    {Workers, 10'211}, {Peasants, 9'789}, {Businessmen, 11}, {Industrialists, 6}, {Landowners, 4},
};

void ArrestEnemies(GameState& state)
{
    for (const Arrest& arrest : kArrests) {
        state.Population[Prisoners] += arrest.people;
        state.Population[arrest.group] -= arrest.people;
    }
    state.ExpPrisons = state.Population[Prisoners] * kPrisonerPay;
}

void AskForAid(GameState& state)
{
    state.AidAsked = 1;
}

void BuyHelicopter(GameState& state)
{
    state.Money -= 10'000'000;
}

// Actions ----------------------------------------------------------------------------------------------

// A step on a budget line also bars the step back for this month.
struct BudgetStep {
    core::Action action;
    i32 GameState::*line;
    double percent;
    std::size_t barred;
};
constexpr BudgetStep kBudgetSteps[] = {
    {core::kCutEducation, &GameState::ExpEducation, -10, core::kRaiseEducation},
    {core::kRaiseEducation, &GameState::ExpEducation, 10, core::kCutEducation},
    {core::kCutHealth, &GameState::ExpHealth, -10, core::kRaiseHealth},
    {core::kRaiseHealth, &GameState::ExpHealth, 10, core::kCutHealth},
    {core::kCutAllowances, &GameState::ExpAllowances, -10, core::kRaiseAllowances},
    {core::kRaiseAllowances, &GameState::ExpAllowances, 10, core::kCutAllowances},
    {core::kCutArmyFunds, &GameState::ExpArmy, -10, core::kRaiseArmyFunds},
    {core::kRaiseArmyFunds, &GameState::ExpArmy, 10, core::kCutArmyFunds},
    {core::kCutPoliceFunds, &GameState::ExpPolice, -10, core::kRaisePoliceFunds},
    {core::kRaisePoliceFunds, &GameState::ExpPolice, 10, core::kCutPoliceFunds},
    {core::kCutUnemployment, &GameState::ExpUnemployment, -10, core::kRaiseUnemployment},
    {core::kRaiseUnemployment, &GameState::ExpUnemployment, 10, core::kCutUnemployment},
};

struct Deed {
    std::int64_t number;  // of the action or the request
    void (*apply)(GameState&);
};
constexpr Deed kDeeds[] = {
    {core::kSellIsland, SellIsland},
    {core::kRecruitGuards, RecruitPersonalArmy},
    {core::kRunCampaign, RunCampaign},
    {core::kAttackGuerrillas, AttackGuerrillas},
    {core::kExecutePrisoners, ExecutePrisoners},
    {core::kReleasePrisoners, ReleasePrisoners},
    {core::kArrestEnemies, ArrestEnemies},
    {core::kAskForAid, AskForAid},
    {core::kBuyHelicopter, BuyHelicopter},
};

// Requests ---------------------------------------------------------------------------------------------

// Somebody's wages are somebody else's costs.
struct Raise {
    std::int64_t request;
    Group group;
    double percent;  // of IncomePerPerson
};
constexpr Raise kRaises[] = {
    {1, Workers, 5},  {1, Industrialists, -5}, {4, Peasants, 5}, {4, Landowners, -5},
    {5, Workers, -5}, {5, Industrialists, 5},  {6, Workers, -5}, {6, Industrialists, 5},
};

// Afterwards nobody touches the police's funds or the unemployed this month.
void DisarmTheState(GameState& state)
{
    state.ExpPolice = ChangedByPercent(state.ExpPolice, -20);
    state.ExpArmy = ChangedByPercent(state.ExpArmy, -20);
    constexpr std::size_t kBarred[] = {core::kCutPoliceFunds, core::kRaisePoliceFunds, core::kCutUnemployment,
                                       core::kRaiseUnemployment};
    for (const std::size_t barred : kBarred) {
        state.ActionDone[barred] = 1;
    }
}

// The army marches as in an attack, but its dead are not counted.
void SendTheArmy(GameState& state)
{
    MarchIntoTheMountains(state);
    state.ActionDone[core::kAttackGuerrillas] = 1;
}

constexpr Deed kRequestDeeds[] = {{2, DisarmTheState}, {3, ReleasePrisoners}, {7, SendTheArmy}};

}  // namespace

void ApplyActionEffect(std::int64_t action, GameState& state)
{
    for (const BudgetStep& step : kBudgetSteps) {
        if (step.action == action) {
            state.*step.line = ChangedByPercent(state.*step.line, step.percent);
            state.ActionDone[step.barred] = 1;
        }
    }
    for (const Deed& deed : kDeeds) {
        if (deed.number == action) {
            deed.apply(state);
        }
    }
}

void ApplyRequestEffect(std::int64_t request, GameState& state)
{
    for (const Raise& raise : kRaises) {
        if (raise.request == request) {
            i32& income = state.IncomePerPerson[raise.group];
            income = ChangedByPercent(income, raise.percent);
        }
    }
    for (const Deed& deed : kRequestDeeds) {
        if (deed.number == request) {
            deed.apply(state);
        }
    }
}

}  // namespace events
