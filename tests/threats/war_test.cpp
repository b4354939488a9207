// The one stroke that decides a war.
#include "support/test_game.h"
#include "threats/dice.h"
#include "threats/war_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Roll;

TEST(War, IsWonByTheChiefTheArmyAndTheDice)
{
    struct Case {
        const char* why;
        std::int64_t army, ability, war, enemy;
        double ours, theirs;
        bool won;
    };
    const Case cases[] = {
        {"56 and 10 against 60 and 5", 70, 5, 1, 60, Roll(10, 1, 10), Roll(5, 1, 15), true},
        {"a tie is a defeat", 70, 5, 2, 60, Roll(10, 1, 10), Roll(6, 1, 15), false},
        {"91 and 1 against 85 and 10", 70, 10, 3, 85, Roll(1, 1, 15), Roll(10, 1, 10), false},
        {"91 and 5 against 85 and 10", 70, 10, 3, 85, Roll(5, 1, 15), Roll(10, 1, 10), true},
        {"the least of the stronger", 70, 10, 3, 85, Roll(1, 1, 15), Roll(6, 1, 10), true},
        {"is a tie with seven", 70, 10, 3, 85, Roll(1, 1, 15), Roll(7, 1, 10), false},
        {"of equals the enemy is the stronger", 60, 7, 1, 60, Roll(10, 1, 10), Roll(10, 1, 15), false},
        {"a chief of 1 wastes six tenths", 100, 1, 1, 39, Roll(1, 1, 15), Roll(1, 1, 10), true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state;
        state.Strength[core::Army] = c.army;
        state.ArmyChiefs[0][core::kAbility] = core::i32{c.ability};
        state.War = c.war;
        (c.war == 1   ? state.HermositaStrength
         : c.war == 2 ? state.FerazStrength
                      : state.DescalzaStrength) = c.enemy;
        state.Difficulty = 2;
        state.TotalPopulation = 100;
        state.ExpState = 999;
        test::ToldChance chance({c.ours, c.theirs});
        EXPECT_EQ(threats::WarIsWon(state, chance), c.won);
        test::ExpectFields(state, {{"War", 0}, {"ExpState", 500}});
        EXPECT_EQ(chance.drawn, 2);
    }
}

// A tenth for each point of ability and three more: an enemy as strong as that is beaten by a draw one higher.
TEST(War, EveryChiefLeadsByHisAbility)
{
    for (std::int64_t ability = 1; ability <= 10; ++ability) {
        for (const bool won : {false, true}) {
            SCOPED_TRACE(ability);
            core::GameState state;
            state.War = 2;
            state.Strength[core::Army] = 100;
            state.ArmyChiefs[0][core::kAbility] = core::i32{ability};
            state.FerazStrength = 30 + 10 * ability;
            test::ToldChance chance({Roll(won ? 2 : 1, 1, 10), Roll(1, 1, 15)});
            EXPECT_EQ(threats::WarIsWon(state, chance), won);
        }
    }
}

TEST(War, DefeatIsBlamedByAllAndTakesAFifthOfTheArmysStrength)
{
    struct Case {
        std::int64_t before, after;
    };
    for (const Case& c : {Case{70, 56}, Case{25, 20}, Case{33, 26}}) {
        core::GameState state;
        state.Strength[core::Army] = c.before;
        threats::TakeDefeat(state);
        EXPECT_EQ(state.Strength[core::Army], c.after);
        EXPECT_THAT(state.Opposition, testing::ElementsAre(5, 5, 5, 5, 5, 15, 5, 0, 0));
    }
}

TEST(War, EndsOnItsScreenAndTheMonthIsClosed)
{
    struct Case {
        std::int64_t enemy;
        const char* message;
        std::int64_t fallen, opposition, workers, americans;
    };
    const Case cases[] = {
        {1, "Mr.President, war is over. Our Army returns glorius from the battle!", 1'793, -10, 0, 40},
        {500, "Mr.President, war is over. Unfortunately we have been defeated! Nobody is going to like this!",
         3'587, 15, 5, 70},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        test::TestGame game;
        game.StartGame();
        game.Set({{"PoliceChiefs[0][2]", 1},
                  {"War", 1},
                  {"HermositaStrength", c.enemy},
                  {"RevolutionWait[1]", 3}});
        game.Click("frmMain.Label5(4)");
        const core::GameState before = game.State();
        game.Wait(3000);
        EXPECT_TRUE(game.Shown("frmWAR"));
        EXPECT_EQ(game.Text("frmWAR.Label1"), c.message);
        game.Expect({{"Population[Army]", 119'554 - c.fallen},
                     {"Victims", c.fallen},
                     {"AmericanHostility", c.americans},
                     {"RevolutionWait[1]", 2}});
        EXPECT_EQ(game.State().Opposition[core::Army], before.Opposition[core::Army] + c.opposition);
        EXPECT_EQ(game.State().Opposition[core::Workers], before.Opposition[core::Workers] + c.workers);

        game.Click("frmMain.Label5(3)");  // the next command closes the screen
        EXPECT_FALSE(game.Shown("frmWAR"));
    }
}

}  // namespace
