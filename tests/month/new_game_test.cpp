#include "core/start_values.h"

#include "core/society.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using core::GameState;

struct ByLevel {
    const char* field;
    std::array<core::Value, 3> values;
};

TEST(NewGame, StartsWithTheValuesOfItsLevel)
{
    const ByLevel differing[] = {
        {"Opposition[Workers]", {40, 45, 50}},
        {"Opposition[Peasants]", {30, 40, 45}},
        {"Opposition[Businessmen]", {10, 15, 19}},
        {"Opposition[Industrialists]", {8, 10, 15}},
        {"Opposition[Landowners]", {5, 7, 12}},
        {"Opposition[Army]", {3, 5, 10}},
        {"Opposition[Police]", {1, 3, 8}},
        {"Opposition[Guerrillas]", {100, 1000, 100}},
        {"Opposition[Prisoners]", {100, 1000, 100}},
        {"Strength[Guerrillas]", {9, 12, 15}},
        {"Strength[PersonalArmy]", {5, 0, 0}},
        {"Population[PersonalArmy]", {500, 0, 0}},
        {"TotalPopulation", {5'500'500, 5'500'000, 5'500'000}},
        {"TotalStrength", {265, 263, 266}},
        {"StrengthPct[Army]", {26.415094F, 26.615969F, 26.31579F}},
        {"ExpState", {16'501'500, 22'000'000, 27'500'000}},
        {"ExpPersonalArmy", {2'750'000, 0, 0}},
        {"ExpTotal", {57'880'882, 60'629'382, 66'129'382}},
    };
    const test::FieldValues same{
        {"MonthsInPower", 1},
        {"InitMark", 1},
        {"Money", 50'000'000},
        {"SwissBank", 0},
        {"AmericanHostility", 50},
        {"Strength[Workers]", 30},
        {"Strength[Landowners]", 40},
        {"Strength[Police]", 25},
        {"Strength[Prisoners]", 1},
        {"Population[Workers]", 2'206'140},
        {"Population[Guerrillas]", 1'013},
        {"Population[Prisoners]", 59'987},
        {"TaxRate[Workers]", 2},
        {"TaxRate[Businessmen]", 3},
        {"TaxRate[Landowners]", 4},
        {"TaxIncome[Workers]", 6'177'192},
        {"TaxIncome[Peasants]", 5'396'112},
        {"TaxIncome[Businessmen]", 4'479'291},
        {"TaxIncome[Industrialists]", 11'999'964},
        {"TaxIncome[Landowners]", 16'945'871},
        {"TaxIncomeTotal", 44'998'430},
        {"ExpPrisons", 2'399'480},
        {"Popularity", 0},
        {"StrengthPct[PersonalArmy]", 0},
    };
    const std::array<std::int64_t, 3> popularities{66, 49, 54};
    for (const core::Level level : {core::kEasy, core::kNormal, core::kHard}) {
        SCOPED_TRACE(level);
        GameState state;
        state.Difficulty = level;
        core::SetStartValues(state);
        for (const ByLevel& row : differing) {
            test::ExpectFields(state, {{row.field, row.values[static_cast<std::size_t>(level)]}});
        }
        test::ExpectFields(state, same);
        core::UpdatePopularity(state);
        EXPECT_EQ(std::int64_t{state.Popularity}, popularities[static_cast<std::size_t>(level)]);
    }
}

TEST(NewGame, DrawsTheNeighboursAndSaysWelcome)
{
    test::TestGame game;
    game.Click("frmlogo");
    game.Tell({0, 0, 0.5, 0.99999999});
    game.Click("frmStart.Command1");
    game.Expect({{"HermositaStrength", 60}, {"FerazStrength", 73}, {"DescalzaStrength", 85}});
    const std::vector<core::Chance::Drawn> drawn = game.TakeDrawn();
    ASSERT_EQ(drawn.size(), 70U);
    EXPECT_EQ(drawn[0].n, 87);
    EXPECT_EQ(drawn[0].value, 1) << "where the names begin";
    game.Expect({{"ChiefNameSeed", 12}});
    EXPECT_EQ(
        game.Banner(),
        "Mr.President welcome to your office. What you see is a computer program especially designed from "
        "our Secret Police department, to keep you informed at any time and help you tyrannize this country "
        "without having to see blood, deaths and other messy stuff. Good luck!  ");
}

}  // namespace
