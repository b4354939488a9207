// From the title to the first months, by clicks.
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Opening, LeadsFromTheTitleToTheThirdMonthByClicks)
{
    test::TestGame game;
    EXPECT_THAT(game.Front(), ElementsAre("frmlogo"));

    game.Click("frmlogo.Image1");
    EXPECT_THAT(game.Front(), ElementsAre("frmStart"));
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/quake.wav", "sound/click.wav"));
    EXPECT_EQ(game.host.switched, 1);

    game.Click("frmStart.Command1");
    EXPECT_THAT(game.Front(), ElementsAre("frmName", "frmMain", "frmMonthBanner"));
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(4)"), "frmMain waits behind frmName");

    game.Type("frmName.Text1", " Ada \"the 2nd\" ");
    game.Click("frmName.Command3");
    EXPECT_THAT(game.Front(), ElementsAre("frmMain", "frmMonthBanner"));
    game.Expect({{"PlayerName", " Ada \"the 2nd\" "}, {"MonthsInPower", 1}});

    for (const char* message : {"You are in power for 2 months", "You are in power for 3 months"}) {
        game.Click("frmMain.Label5(4)");
        EXPECT_EQ(game.Banner(), message);
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(4)"), "frmMain is disabled");
        game.Set({{"Strength[Guerrillas]", 1}});
        game.Tell({0.999, 0.999});  // no event and no request
        game.Wait(3000);
    }
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(5)"), "");
}

TEST(Opening, StepsThroughTheLevels)
{
    test::TestGame game;
    game.Click("frmlogo");
    const struct {
        const char* caption;
        std::int64_t level;
    } steps[] = {{"Level Normal", 1}, {"Level Hard", 2}, {"Level Easy", 0}, {"Level Normal", 1}};
    for (const auto& step : steps) {
        EXPECT_EQ(game.Text("frmStart.Command2"), step.caption);
        game.Expect({{"Difficulty", step.level}});
        game.TakeSounds();
        game.Click("frmStart.Command2");
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    }
    game.Set({{"Difficulty", 255}});
    game.Click("frmStart.Command2");
    EXPECT_EQ(game.Text("frmStart.Command2"), "Level Easy") << "a level that does not exist";
}

TEST(Opening, AcceptsAnyName)
{
    for (const char* name : {"", " ", "Juan \u00C1lvaro \u5F35", "\u202E\u05D0", "a, \"b\""}) {
        test::TestGame game;
        game.StartGame(core::kHard, name);
        game.Expect({{"PlayerName", name}, {"Difficulty", 2}});
        EXPECT_EQ(game.Text("frmName.Text1"), "") << "the next president finds no name there";
    }
}

TEST(Opening, SwitchesTheDisplayOnceARun)
{
    test::TestGame game;
    game.Set({{"DisplayModeSet", 1}});  // as it is from the second game on
    game.Click("frmlogo");
    EXPECT_EQ(game.host.switched, 0);
    game.Call("SwitchDisplayMode");
    EXPECT_EQ(game.host.switched, 0);
    game.Set({{"DisplayModeSet", 0}});
    game.Call("SwitchDisplayMode");
    game.Call("SwitchDisplayMode");
    EXPECT_EQ(game.host.switched, 1);
    game.Expect({{"DisplayModeSet", 1}});
}

TEST(Opening, QuitsWithTheDisplayRestored)
{
    test::TestGame game;
    game.Click("frmlogo");
    game.TakeSounds();
    game.Click("frmStart.Command3");
    EXPECT_TRUE(game.host.ended);
    EXPECT_EQ(game.host.restored, 1);
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
}

TEST(Opening, TellsWhereTheManualIs)
{
    test::TestGame game;
    game.folder.Write("Data/Manual.htm", "<p>Rule.</p>");
    game.Click("frmlogo");
    game.Click("frmStart.Command5");
    EXPECT_THAT(game.host.opened, ElementsAre("Data/Manual.htm"));
    EXPECT_THAT(game.Text("frmStart.Label3"), HasSubstr(game.folder.Path("Data/Manual.htm").string()));
    game.folder.Remove("Data/Manual.htm");
    game.Click("frmStart.Command5");
    EXPECT_THAT(game.Text("frmStart.Label3"), HasSubstr("is not there"));
}

TEST(Opening, ShowsWhoMadeThisUntilAClickAnywhere)
{
    for (const char* place : {"frmAbout", "frmAbout.Image1", "frmAbout.Label1", "frmAbout.Label5"}) {
        test::TestGame game;
        game.StartGame();
        game.Screens().frmAbout.Show();
        game.Click(place);
        EXPECT_FALSE(game.Shown("frmAbout")) << place;
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    }
}

}  // namespace
