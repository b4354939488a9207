// Rates, budget and the way to the bank, by clicks.
#include "support/test_game.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

constexpr const char* kTaxes = "frmMain.Label5(1)";

class TaxesTest : public testing::Test {
protected:
    TaxesTest() { game.StartGame(); }

    test::TestGame game;
};

TEST_F(TaxesTest, RedGoesWithTheSignOfADebt)
{
    game.Click(kTaxes);
    EXPECT_EQ(game.Control("frmTaxes.lblbalance").Now().fore, look::kNegative);
    EXPECT_EQ(game.Control("frmTaxes.Label22").Now().fore, look::kInk);
    game.Set({{"ExpState", 0}, {"Money", -1}});
    game.Click(kTaxes);
    EXPECT_EQ(game.Text("frmTaxes.lblbalance"), "6,369,048");
    EXPECT_EQ(game.Control("frmTaxes.lblbalance").Now().fore, look::kInk);
    EXPECT_EQ(game.Control("frmTaxes.Label22").Now().fore, look::kNegative);
}

TEST_F(TaxesTest, ButtonsMoveRateStrengthAndOpposition)
{
    struct Case {
        const char* why;
        const char* button;
        core::Group faction;
        std::int64_t rate, strength, opposition;  // before ...
        std::int64_t newRate, newStrength, newOpposition;
    };
    // clang-format off
    const Case cases[] = {
        {"a rise adds twice the new rate",     "Command1",  core::Workers,        2, 30, 45,   3, 29, 51},
        {"a cut takes twice the old rate",     "Command2",  core::Workers,        3, 29, 51,   2, 30, 45},
        {"opposition may become negative",     "Command3",  core::Peasants,       2, 28,  3,   1, 29, -1},
        {"no cut below 1",                     "Command3",  core::Peasants,       1, 28,  3,   1, 28,  3},
        {"a rise to the highest rate",         "Command4",  core::Peasants,       8, 28, 40,   9, 27, 58},
        {"no rise above 9",                    "Command4",  core::Peasants,       9, 28, 40,   9, 28, 40},
        {"businessmen cut",                    "Command5",  core::Businessmen,    3, 22, 15,   2, 23,  9},
        {"businessmen rise",                   "Command6",  core::Businessmen,    3, 22, 15,   4, 21, 23},
        {"industrialists cut",                 "Command7",  core::Industrialists, 4, 35, 10,   3, 36,  2},
        {"industrialists rise",                "Command8",  core::Industrialists, 4, 35, 10,   5, 34, 20},
        {"landowners cut",                     "Command9",  core::Landowners,     4, 40,  7,   3, 41, -1},
        {"strength is lifted back to 1",       "Command10", core::Landowners,     4,  1,  7,   5,  1, 17},
        {"oppositions stay within their field","Command10", core::Landowners,     4, 40, 32767, 5, 39, 32767},
    };
    // clang-format on
    game.Click(kTaxes);
    core::GameState& state = game.State();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        state.TaxRate[c.faction] = c.rate;
        state.Strength[c.faction] = c.strength;
        state.Opposition[c.faction] = c.opposition;
        game.TakeSounds();
        game.Click(std::string("frmTaxes.") + c.button);
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        EXPECT_EQ(state.TaxRate[c.faction], c.newRate);
        EXPECT_EQ(state.Strength[c.faction], c.newStrength);
        EXPECT_EQ(state.Opposition[c.faction], c.newOpposition);
    }
}

TEST_F(TaxesTest, AStepShowsIncomeButNotExpensesAndAButtonAtItsLimitShowsNothing)
{
    game.Click(kTaxes);
    game.Set({{"Money", 7}, {"ExpArmy", 0}});
    game.Click("frmTaxes.Command1");
    EXPECT_EQ(game.Text("frmTaxes.TaxIncomeC"), "9,265,788");
    EXPECT_EQ(game.Text("frmTaxes.lblbalance"), "-12,542,356");  // with the expenses as last summed up
    EXPECT_EQ(game.Text("frmTaxes.Label22"), "7");
    EXPECT_EQ(game.Text("frmTaxes.OutNum(4)"), "12,334,300");
    game.Set({{"Money", 8}, {"TaxRate[Workers]", 9}});
    game.Click("frmTaxes.Command1");
    EXPECT_EQ(game.Text("frmTaxes.Label22"), "7");
    EXPECT_EQ(game.Text("frmTaxes.TaxRateC"), "3");
}

TEST_F(TaxesTest, OpeningBringsRatesAndStrengthsBackIntoRange)
{
    game.Set({{"TaxRate[Peasants]", 200}, {"Strength[Workers]", -5}, {"Strength[Army]", -5}});
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        game.State().Opposition[g] = 0;
    }
    game.Click(kTaxes);
    game.Expect(
        {{"TaxRate[Peasants]", 9}, {"Strength[Workers]", 1}, {"Strength[Army]", -5}, {"Popularity", 100}});
    EXPECT_EQ(game.Text("frmTaxes.TaxRateP"), "9");
}

TEST_F(TaxesTest, TheBankOpensInstead)
{
    game.Set({{"SwissBank", 1234567}});
    game.Click(kTaxes);
    game.TakeSounds();
    game.Click("frmTaxes.Command11");
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    EXPECT_THAT(game.Front(), ElementsAre("frmBank", "frmMain", "frmMonthBanner"));
    EXPECT_EQ(game.Text("frmBank.Label2"), "1,234,567");
    EXPECT_EQ(game.Text("frmBank.Text1"), "50,000,000");
    game.Click(kTaxes);
    EXPECT_THAT(game.Front(), ElementsAre("frmTaxes", "frmMain", "frmMonthBanner"));
}

}  // namespace
