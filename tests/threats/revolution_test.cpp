// Who dares, who joins, what the dialog says, and who gets away.
#include "support/test_game.h"
#include "threats/dice.h"
#include "threats/revolution_rules.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Roll;
using testing::ElementsAre;

TEST(Revolution, NeedsStrengthHatredPatienceAndALowDraw)
{
    struct Case {
        const char* why;
        std::int64_t strength, opposition, wait;
        double r;
        bool starts;
        int draws;
    };
    const Case cases[] = {
        {"the edges of both, on a 6", 30, 66, 0, Roll(6, 1, 12), true, 1},
        {"a 7 is not below 6.6", 30, 66, 0, Roll(7, 1, 12), false, 1},
        {"opposition 65 never starts one", 200, 65, 0, 0, false, 0},
        {"too weak", 29, 90, 0, 0, false, 0},
        {"12 is not below 12.0", 30, 120, 0, Roll(12, 1, 12), false, 1},
        {"certain from 121 on", 30, 121, 0, Roll(12, 1, 12), true, 1},
        {"who waits draws in vain", 30, 121, 3, 0, false, 1},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state;
        state.Strength[core::Peasants] = c.strength;
        state.Opposition[core::Peasants] = c.opposition;
        state.RevolutionWait[2] = c.wait;
        test::ToldChance chance({c.r});
        threats::DrawRevolution(state, chance);
        EXPECT_EQ(state.RevolutionStarter, c.starts ? 2 : 0);
        EXPECT_EQ(state.Revolutionaries[2], c.starts ? 1 : 0);
        EXPECT_EQ(chance.drawn, c.draws);
    }
}

TEST(Revolution, IsJoinedByTheHatefulWhateverTheirStrength)
{
    core::GameState state;
    state.Strength.fill(5);
    state.Strength[core::Workers] = 30;  // whose draw fails
    state.Strength[core::Businessmen] = 30;
    //                  Workers Peasants Businessmen Industrialists Landowners Army Police
    state.Opposition = {70, 90, 70, 55, 56, 56, 100, 0, 0};
    state.RevolutionWait[7] = 1;
    test::ToldChance chance({Roll(7, 1, 12), Roll(6, 1, 12),  // workers, businessmen start?
                             Roll(7, 1, 10), Roll(8, 1, 10),
                             Roll(5, 1, 10),                    // workers, peasants, landowners join?
                             Roll(6, 1, 10), Roll(1, 1, 10)});  // army, and police who wait
    threats::DrawRevolution(state, chance);
    EXPECT_EQ(chance.drawn, 7);
    EXPECT_EQ(state.RevolutionStarter, 3);
    EXPECT_THAT(state.Revolutionaries, ElementsAre(0, 0, 1, 1, 0, 1, 0, 0, 0, 0));
}

TEST(Revolution, TurnsTheBackdropRedAndWaitsForAnAnswer)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"Strength[Workers]", 30}, {"Opposition[Workers]", 121}});
    game.Tell({Roll(12, 1, 12)});
    game.Call("Revolution");
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/croud.wav"));
    EXPECT_THAT(game.Front(), ElementsAre("frmRev", "frmMain", "frmMonthBanner"));
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "frmMain waits behind frmRev");
    EXPECT_EQ(game.BannerBack(), look::kRed);
    EXPECT_EQ(game.Control("frmRev.Image1").Now().picture, "images/revolution.bmp");
    game.Expect({{"Revolutions", 1}, {"RevolutionaryStrength", 30}, {"RevolutionaryPct", 11}});
}

TEST(Flight, DependsOnWingsGuardsAndTheDraw)
{
    struct Case {
        const char* why;
        std::int64_t helicopter, rebels, guards;
        double r;
        bool escapes;
    };
    const Case cases[] = {
        {"20.0 is more than 19", 1, 200, 0, Roll(19, 1, 30), false},
        {"but not more than 20", 1, 200, 0, Roll(20, 1, 30), true},
        {"20.1 is", 1, 201, 0, Roll(20, 1, 30), false},
        {"guards count as luck", 1, 200, 20, Roll(1, 1, 30), true},
        {"on foot a 1 is caught", 0, 0, 99, Roll(1, 1, 10), false},
        {"a 2 gets through", 0, 999, 0, Roll(2, 1, 10), true},
        {"a 3 is caught", 0, 0, 99, Roll(3, 1, 10), false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        test::TestGame game;
        game.StartGame();
        game.Set({{"RevolutionStarter", 1},
                  {"RevolutionaryStrength", c.rebels},
                  {"Strength[PersonalArmy]", c.guards},
                  {"ActionDone[25]", c.helicopter}});
        game.Call("RevolutionStart");
        game.TakeSounds();
        game.Tell({c.r});
        game.Click("frmRev.Command1");
        game.Expect({{"Dead", c.escapes ? 0 : 1}});
        EXPECT_FALSE(game.Shown("frmRev"));
        if (c.helicopter == 1) {
            EXPECT_EQ(game.Banner(), "You try to leave the country, using your escape helicopter.");
            EXPECT_THAT(game.TakeSounds(),
                        ElementsAre("sound/click.wav", c.escapes ? "sound/heliOK.wav" : "sound/heliNo.wav"));
        } else {
            EXPECT_EQ(game.Banner(), "You try to leave the country on foot!");
            EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        }
        const ui::Picture& picture = game.Screens().frmMonthBanner.Image1;
        EXPECT_TRUE(picture.Now().visible);
        EXPECT_EQ(picture.Now().picture, c.helicopter == 1 ? "images/flight.bmp" : "images/walk.bmp");
        game.Wait(4999);
        EXPECT_EQ(game.BannerBack(), look::kRed);
        game.Wait(1);
        EXPECT_EQ(game.BannerBack(), look::kBlack);
        EXPECT_EQ(picture.Now().visible, !c.escapes) << "it goes with the next message";
        EXPECT_EQ(picture.Now().picture, c.escapes ? "" : "images/execution.png");
        EXPECT_EQ(game.Banner(),
                  c.escapes
                      ? "Congratulations! You made it alive to the United States!"
                      : "You were arrested and executed by the Revolutioners! The new goverment announced "
                        "the day of your death national holiday!");
        game.Expect({{"Dead", c.escapes ? 0 : 1}});
    }
}

}  // namespace
