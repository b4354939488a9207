// The one stroke that decides a war.
#include "support/test_game.h"

#include <gtest/gtest.h>

namespace {

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
