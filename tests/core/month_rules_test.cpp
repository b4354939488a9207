#include "core/month_rules.h"

#include "core/society.h"
#include "core/start_values.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using core::GameState;
using testing::UnorderedElementsAre;

GameState StartOf(core::Level level)
{
    GameState state;
    state.Difficulty = level;
    core::SetStartValues(state);
    return state;
}

// What one rule does to a game of the normal level.
struct Case {
    const char* why;
    test::FieldValues before, after;
};

template <class Rule> void Try(std::span<const Case> cases, const Rule& rule)
{
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        GameState state = StartOf(core::kNormal);
        test::SetFields(state, c.before);
        rule(state);
        test::ExpectFields(state, c.after);
    }
}

TEST(Month, CountsPopularityWithoutLimits)
{
    const Case cases[] = {
        {"the start", {}, {{"Popularity", 49}}},
        {"everybody opposed at 200 percent",
         {{"Opposition[Workers]", 200}, {"Opposition[Peasants]", 200}},
         {{"Popularity", -101}}},
        {"nobody opposed",
         {{"Opposition[Workers]", 0},
          {"Opposition[Peasants]", 0},
          {"Opposition[Businessmen]", 0},
          {"Opposition[Industrialists]", 0},
          {"Opposition[Landowners]", 0},
          {"Opposition[Army]", 0},
          {"Opposition[Police]", 0},
          {"Opposition[Guerrillas]", 0},
          {"Opposition[Prisoners]", 0}},
         {{"Popularity", 100}}},
        {"no people at all", {{"TotalPopulation", 0}}, {{"Popularity", 100}}},
        {"the personal army is counted but opposes nobody",
         {{"TotalPopulation", 11'000'000}},
         {{"Popularity", 74}}},
    };
    Try(cases, core::UpdatePopularity);
}

TEST(Month, SettlesTheAccounts)
{
    const Case cases[] = {
        {"the start", {}, {{"TaxIncomeTotal", 44'998'430}, {"ExpTotal", 60'629'382}}},
        {"the personal army is paid",
         {{"Population[PersonalArmy]", 300}},
         {{"ExpPersonalArmy", 1'650'000}, {"TotalPopulation", 5'500'300}, {"ExpTotal", 62'279'382}}},
        {"war expenses count", {{"ExpWar", 1000}}, {{"ExpTotal", 60'630'382}}},
        {"a half goes to even: 2.5",
         {{"IncomePerPerson[Workers]", 25}, {"Population[Workers]", 10}, {"TaxRate[Workers]", 1}},
         {{"TaxIncome[Workers]", 2}}},
        {"a half goes to even: 3.5",
         {{"IncomePerPerson[Workers]", 35}, {"Population[Workers]", 10}, {"TaxRate[Workers]", 1}},
         {{"TaxIncome[Workers]", 4}}},
        {"more than a field holds",
         {{"IncomePerPerson[Workers]", 2'147'483'647},
          {"Population[Workers]", 2'147'483'647},
          {"TaxRate[Workers]", 255}},
         {{"TaxIncome[Workers]", 2'147'483'647}, {"TaxIncomeTotal", 2'147'483'647}}},
        {"more than a field holds, below zero",
         {{"IncomePerPerson[Workers]", 2'147'483'647},
          {"Population[Workers]", -2'147'483'648},
          {"TaxRate[Workers]", 255}},
         {{"TaxIncome[Workers]", -2'147'483'648}}},
    };
    Try(cases, core::SettleAccounts);
}

TEST(Month, IsCoveredByATreasuryThatEqualsTheDeficit)
{
    const struct {
        std::int64_t income, expenses, money;
        bool covers;
    } cases[] = {
        {100, 150, 50, true},  {100, 150, 49, false}, {100, 100, -5, true},
        {150, 100, -50, true}, {0, 0, 0, true},       {-2'147'483'648, 2'147'483'647, 2'147'483'647, false},
    };
    for (const auto& c : cases) {
        GameState state;
        test::SetFields(state, {{"TaxIncomeTotal", c.income}, {"ExpTotal", c.expenses}, {"Money", c.money}});
        EXPECT_EQ(core::TreasuryCovers(state), c.covers)
            << c.income << " - " << c.expenses << ", " << c.money;
    }
}

TEST(Month, CountsTheMonthAndMovesTheMoney)
{
    const Case cases[] = {
        {"the first one", {{"AidAsked", 1}}, {{"MonthsInPower", 2}, {"Money", 34'369'048}, {"AidAsked", 0}}},
        {"to nothing left", {{"Money", 15'630'952}}, {{"Money", 0}}},
        {"beyond the most a treasury holds",
         {{"Money", 2'147'483'647}, {"ExpTotal", 0}},
         {{"Money", 2'147'483'647}}},
        {"the last month that can be counted", {{"MonthsInPower", 32767}}, {{"MonthsInPower", 32767}}},
    };
    Try(cases, core::CountMonth);
}

// The r that makes a draw of 1 .. 9 give value.
double Showing(int value)
{
    return (value - 0.5) / 9;
}

TEST(Month, APoliceChiefWhoCanTooMuchDoesNotReport)
{
    const struct {
        std::int64_t ability;
        double r;
        std::size_t draws;
        std::int64_t noInfo;
    } cases[] = {
        {7, 0, 0, 0},          {8, Showing(7), 1, 1}, {8, Showing(8), 1, 0},
        {9, Showing(8), 1, 1}, {9, Showing(9), 1, 0}, {10, Showing(9), 1, 1},
    };
    for (const auto& c : cases) {
        GameState state;
        state.PoliceNoInfo = 1;
        state.PoliceChiefs[0][core::kAbility] = core::i32{c.ability};
        core::Chance chance;
        std::size_t draws = 0;
        chance.onDraw = [&draws](const core::Chance::Drawn& drawn) {
            ++draws;
            EXPECT_EQ(drawn.n, 9);
            EXPECT_EQ(drawn.b, 1);
        };
        chance.Tell(c.r);
        core::DecidePoliceReport(state, chance);
        EXPECT_EQ(std::int64_t{state.PoliceNoInfo}, c.noInfo) << c.ability << " at " << c.r;
        EXPECT_EQ(draws, c.draws);
    }
}

TEST(Month, TurnsWithItsFlagsAndItsDrift)
{
    const Case cases[] = {
        {"in peace",
         {{"WarThisMonth", 1}},
         {{"WarThisMonth", 0},
          {"Opposition[Workers]", 47},
          {"Opposition[Peasants]", 42},
          {"Opposition[Businessmen]", 16},
          {"Opposition[Industrialists]", 10},
          {"Popularity", 49}}},
        {"in war",
         {{"War", 2}},
         {{"WarThisMonth", 1},
          {"War", 2},
          {"Opposition[Workers]", 49},
          {"Opposition[Peasants]", 44},
          {"Opposition[Businessmen]", 17}}},
        {"a campaign counts as war and ends",
         {{"War", 1}, {"GuerrillaWar", 1}, {"ExpState", 1}, {"TotalPopulation", 1000}},
         {{"WarThisMonth", 1},
          {"War", 0},
          {"GuerrillaWar", 0},
          {"ExpState", 4000},
          {"Opposition[Workers]", 49}}},
        {"a campaign that was not begun does not end",
         {{"GuerrillaWar", 1}, {"ExpState", 1}},
         {{"WarThisMonth", 0}, {"GuerrillaWar", 1}, {"ExpState", 1}}},
        {"actions may be taken again, but for the last two",
         {{"ActionDone[0]", 1},
          {"ActionDone[1]", 1},
          {"ActionDone[23]", 1},
          {"ActionDone[24]", 1},
          {"ActionDone[25]", 1}},
         {{"ActionDone[0]", 1},
          {"ActionDone[1]", 0},
          {"ActionDone[23]", 0},
          {"ActionDone[24]", 1},
          {"ActionDone[25]", 1}}},
        {"waiting for aid", {{"AidWait", 3}}, {{"AidWait", 2}}},
        {"not waiting for aid", {{"AidWait", 0}}, {{"AidWait", 0}}},
        {"strengths are put right",
         {{"Strength[Police]", -4}},
         {{"Strength[Police]", 1}, {"TotalStrength", 239}}},
    };
    Try(cases, core::TurnMonth);
}

TEST(Month, ClosesWithFlightHatredAndAnger)
{
    const Case cases[] = {
        {"seventy flee, one and one more fight",
         {{"Opposition[Workers]", 40}, {"Opposition[Peasants]", 30}},
         {{"Population[Workers]", 2'206'100},
          {"Population[Peasants]", 2'997'810},
          {"Population[Guerrillas]", 1'083},
          {"Strength[Guerrillas]", 14}}},
        {"those who would sit in prison fight",
         {{"Opposition[Workers]", 40}, {"Opposition[Peasants]", 30}, {"Population[Prisoners]", 0}},
         {{"Strength[Guerrillas]", 15}, {"Strength[Prisoners]", 1}}},
        {"at least one recruit and one more",
         {{"Opposition[Workers]", 0}, {"Opposition[Peasants]", 0}},
         {{"Strength[Guerrillas]", 14}, {"Population[Guerrillas]", 1'013}}},
        {"75 / 50 is even at 2",
         {{"Opposition[Workers]", 40}, {"Opposition[Peasants]", 35}},
         {{"Strength[Guerrillas]", 15}}},
        {"125 / 50 is even at 2 as well",
         {{"Opposition[Workers]", 75}, {"Opposition[Peasants]", 50}},
         {{"Strength[Guerrillas]", 15}}},
        {"prisoners gather strength up to 12", {{"Strength[Prisoners]", 11}}, {{"Strength[Prisoners]", 12}}},
        {"and no further", {{"Strength[Prisoners]", 12}}, {{"Strength[Prisoners]", 12}}},
        {"50 does not hate enough", {{"Opposition[Army]", 50}}, {{"Strength[Army]", 70}}},
        {"51 adds one", {{"Opposition[Army]", 51}}, {{"Strength[Army]", 71}}},
        {"75 adds one and a half, to the even 32",
         {{"Opposition[Workers]", 75}, {"Strength[Workers]", 30}},
         {{"Strength[Workers]", 32}}},
        {"from 31 as well",
         {{"Opposition[Workers]", 75}, {"Strength[Workers]", 31}},
         {{"Strength[Workers]", 32}}},
        {"125 adds two and a half: 30 becomes 32",
         {{"Opposition[Police]", 125}, {"Strength[Police]", 30}},
         {{"Strength[Police]", 32}}},
        {"31 becomes 34",
         {{"Opposition[Police]", 125}, {"Strength[Police]", 31}},
         {{"Strength[Police]", 34}}},
        {"the guerrillas' own hatred adds nothing",
         {{"Population[Prisoners]", 1}},
         {{"Strength[Guerrillas]", 15}}},
        {"waiting times count down to 0",
         {{"AssassinWait[1]", 1},
          {"AssassinWait[7]", 5},
          {"RevolutionWait[1]", 0},
          {"RevolutionWait[7]", 255},
          {"AssassinWait[0]", 9},
          {"RevolutionWait[0]", 9}},
         {{"AssassinWait[1]", 0},
          {"AssassinWait[7]", 4},
          {"RevolutionWait[1]", 0},
          {"RevolutionWait[7]", 254},
          {"AssassinWait[0]", 9},
          {"RevolutionWait[0]", 9}}},
    };
    Try(cases, core::CloseMonth);
}

TEST(Month, UnpopularityBreedsOpposition)
{
    // With everybody among the police the popularity is 100 - their opposition, and theirs grows.
    const struct {
        std::int64_t opposition, police, army;
    } cases[] = {
        {79, 79, 5},    {80, 81, 6},    {99, 100, 6},   {100, 103, 8},  {119, 122, 8},
        {120, 126, 11}, {139, 145, 11}, {140, 150, 15}, {500, 510, 15},
    };
    for (const auto& c : cases) {
        GameState state = StartOf(core::kNormal);
        for (core::i32& population : state.Population) {
            population = 0;
        }
        test::SetFields(state, {{"Population[Police]", 10'000'000},
                                {"TotalPopulation", 10'000'000},
                                {"Opposition[Workers]", 0},
                                {"Opposition[Peasants]", 0},
                                {"Opposition[Police]", c.opposition}});
        core::CloseMonth(state);
        test::ExpectFields(state, {{"Opposition[Police]", c.police},
                                   {"Opposition[Army]", c.army},
                                   {"Popularity", 100 - c.opposition},
                                   {"Opposition[Guerrillas]", 1000}});
    }
}

TEST(Month, ClearsTheRevolutionAndNothingElse)
{
    GameState state = StartOf(core::kEasy);
    const GameState before = state;
    test::SetFields(state, {{"RevolutionStarter", 3},
                            {"Revolutionaries[0]", 1},
                            {"Revolutionaries[7]", 1},
                            {"Revolutionaries[8]", 1},
                            {"RevolutionaryStrength", 5},
                            {"RevolutionaryPct", 6},
                            {"AlliedStrength", 7},
                            {"AllyFaction", 2},
                            {"CoupState", 11}});
    core::ClearRevolution(state);
    EXPECT_THAT(test::Changed(before, state),
                UnorderedElementsAre("Revolutionaries[8]", "AllyFaction", "CoupState"));
}

}  // namespace
