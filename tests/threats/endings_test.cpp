// Every way a threat ends a game, by clicks from the menu to the silence before the hall of fame.
#include "support/test_game.h"
#include "threats/dice.h"

#include <gtest/gtest.h>

namespace {

using test::Roll;

struct Ending {
    const char* why;
    test::FieldValues before;
    std::vector<double> dice;  // of the whole month
    std::vector<const char*> clicks;
    std::int64_t pause;  // milliseconds from the last click to the message, and ...
    std::int64_t rest;   // ... from there to the hall
    const char* message;
    std::int64_t dead;
};

constexpr const char* kExecuted =
    "You were arrested and executed by the Revolutioners! The new goverment announced the day of your death "
    "national holiday!";
constexpr const char* kEscaped = "Congratulations! You made it alive to the United States!";
constexpr const char* kFound =
    "Your army lost the battle! Revolutioneries found you hiding in the basement of your mansion. You were "
    "executed immediately!";

const test::FieldValues kRevolution{{"Opposition[Landowners]", 121}, {"Strength[PersonalArmy]", 0}};

TEST(Endings, AreAllReachedByClicks)
{
    // clang-format off
    const Ending endings[] = {
        {"killed by an assassin", {{"Opposition[Businessmen]", 160}}, {Roll(6, 6, 15), 0, 0},
         {"frmMes.Command1"}, 5500, 4000, " Y O U    A R E   D E A D ! ", 1},
        {"caught on foot", kRevolution, {Roll(1, 1, 12), Roll(1, 1, 10)},
         {"frmRev.Command1"}, 5000, 6000, kExecuted, 1},
        {"away on foot", kRevolution, {Roll(1, 1, 12), Roll(2, 1, 10)},
         {"frmRev.Command1"}, 5000, 6000, kEscaped, 0},
        {"shot down", {{"Strength[Guerrillas]", 500}, {"ActionDone[25]", 1}}, {Roll(1, 1, 30)},
         {"frmGRev.Command1"}, 5000, 6000, kExecuted, 1},
        {"away by helicopter", {{"Strength[Prisoners]", 12}, {"ActionDone[25]", 1}}, {Roll(30, 1, 30)},
         {"frmPrRev.Command1"}, 5000, 6000, kEscaped, 0},
        {"a lost civil war", kRevolution, {Roll(1, 1, 12), Roll(1, 1, 10), Roll(15, 1, 15)},
         {"frmRev.Command2", "frmChoose.Command1(3)", "frmMes2.Command2"}, 7500, 6000, kFound, 1},
    };
    // clang-format on
    for (const Ending& ending : endings) {
        SCOPED_TRACE(ending.why);
        test::TestGame game;
        game.StartGame(core::kEasy);
        game.Set({{"PoliceChiefs[0][2]", 1}});  // so that the month end draws nothing
        game.Set(ending.before);
        for (const double r : ending.dice) {
            game.Tell({r});
        }
        game.Click("frmMain.Label5(4)");
        game.Wait(3000);
        for (const char* click : ending.clicks) {
            game.Click(click);
        }
        game.Wait(ending.pause - 1);
        EXPECT_NE(game.Banner(), ending.message);
        game.Wait(1);
        EXPECT_EQ(game.Banner(), ending.message);
        game.Expect({{"Dead", ending.dead}});
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "frmMain is disabled");
        game.Wait(ending.rest - 1);
        EXPECT_EQ(game.Banner(), ending.message);
        game.Wait(1);
        EXPECT_EQ(game.Banner(), " ");
    }
}

}  // namespace
