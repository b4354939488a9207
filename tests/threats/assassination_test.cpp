// Who plots, whom the guards stop, and what becomes of the plotters.
#include "support/test_game.h"
#include "threats/assassination_rules.h"
#include "threats/dice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Roll;
using testing::ElementsAre;

TEST(Assassination, IsAnnouncedSurvivedAndPunishedByClicks)
{
    struct Case {
        const char* name;
        const char* announced;
        const char* executed;
        std::int64_t attempt, strengthBefore, strengthAfter, fewest, most;
    };
    // clang-format off
    const Case cases[] = {
        {"Workers",        "Workers",        "Workers",       6,  16, 13, 10, 100},
        {"Peasants",       "Peasants",       "Peasants",      5,  20, 13, 10, 100},
        {"Businessmen",    "Bussinesmen",    "Businessmen",   7,  21, 14, 8,  30},
        {"Industrialists", "Industrialists", "Industrialist", 9,  22, 15, 5,  20},
        {"Landowners",     "Landowners",     "Landowners",    8,  20, 13, 5,  20},
        {"Army",           "Army",           "Army",          9,  20, 13, 10, 40},
        {"Police",         "Police",         "Police",        10, 29, 19, 5,  30},
    };
    // clang-format on
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string name = c.name;
        const std::string n = std::to_string(++number);
        test::TestGame game;
        game.StartGame();
        game.Set({{"Strength[" + name + "]", c.strengthBefore},
                  {"Opposition[" + name + "]", 151},
                  {"Strength[PersonalArmy]", 20}});
        const core::GameState before = game.State();

        game.Call("AssasinThink");
        EXPECT_EQ(game.Text("frmMes.Label1"),
                  " Assasination attempt by some of the " + std::string(c.announced) + "!");
        game.Expect({{"AttemptStrength[" + n + "][1]", c.attempt},
                     {"AttackingFaction", number},
                     {"AssassinWait[" + n + "]", 5}});
        game.Tell({0, 0.999, 0.999});  // the sound, the attempt, the executions
        game.TakeDrawn();
        game.Click("frmMes.Command1");
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav", "sound/assasin1.wav"));
        game.Wait(5499);
        EXPECT_TRUE(game.Shown("frmMes"));
        game.Wait(1);
        EXPECT_FALSE(game.Shown("frmMes"));
        EXPECT_EQ(game.Front().front(), "frmAFailed");
        EXPECT_EQ(game.Banner(), " ");

        game.Click("frmAFailed.Command1");
        EXPECT_EQ(game.Text("frmMes1.Label1"),
                  "The opposition leaders of the " + std::string(c.executed) + " have been executed!");
        const core::Chance::Drawn executions = game.TakeDrawn().back();
        EXPECT_EQ(executions.b, static_cast<double>(c.fewest));
        EXPECT_EQ(executions.value, c.most);
        game.Expect({{"Victims", c.most},
                     {"Strength[" + name + "]", c.strengthAfter},
                     {"AttemptStrength[" + n + "][1]", 0}});
        const auto group = static_cast<std::size_t>(number - 1);
        EXPECT_EQ(game.State().Population[group], before.Population[group] - c.most);
        const std::int64_t angers[] = {5, 5, 5, 3, 3, 3, 0};
        for (std::size_t f = 0; f < core::kFactions; ++f) {
            EXPECT_EQ(game.State().Opposition[f], before.Opposition[f] + angers[f]);
        }
        game.Click("frmMes1.Command1");
        EXPECT_FALSE(game.Shown("frmMes1"));
        game.Expect({{"AssassinWait[" + n + "]", 4}});  // the month has been closed
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "");
    }
}

TEST(Assassination, SparedPlottersAreGratefulAndTheMonthIsClosed)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"Strength[Police]", 25}, {"Opposition[Police]", 151}, {"Strength[PersonalArmy]", 20}});
    game.Call("AssasinThink");
    game.Tell({0, 0.999});
    game.Click("frmMes.Command1");
    game.Screens().frmMain.Timer1.SetInterval(9'000);
    game.Wait(5500);
    EXPECT_FALSE(game.Screens().frmMain.Timer1.Armed()) << "no second event this month";
    game.TakeSounds();
    game.Click("frmAFailed.Command2");
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    EXPECT_EQ(game.Banner(), "Oh! Mr.President, you are so gracious!");
    EXPECT_THAT(game.Front(), ElementsAre("frmMain", "frmMonthBanner"));
    game.Expect(
        {{"AttemptStrength[7][1]", 0}, {"AssassinWait[7]", 4}, {"Victims", 0}, {"Opposition[Police]", 141}});
}

TEST(Assassination, NoSoundIsHeardTwiceUntilAllFourWere)
{
    core::GameState state;
    test::ToldChance chance({Roll(3, 1, 4), Roll(3, 1, 4), Roll(3, 1, 4), Roll(1, 1, 4), Roll(1, 1, 4)});
    std::vector<std::int64_t> heard;
    for (int i = 0; i < 5; ++i) {
        heard.push_back(threats::NextSound(state, chance));
    }
    EXPECT_THAT(heard, ElementsAre(3, 4, 1, 2, 1));
}

}  // namespace
