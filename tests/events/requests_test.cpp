#include "events/play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Die;
using test::TestGame;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// On Normal: a draw of 1 .. 13.
void DrawRequest(TestGame& game, int value)
{
    game.Tell({Die(value, 13)});
    game.Call("Request");
}

TEST(Requests, AreDrawnInTheirOrder)
{
    struct Case {
        const char* why;
        core::Level level;
        double r;
        test::FieldValues before;
        test::FieldValues after;
        const char* asker;  // null: nobody asks
    };
    const test::FieldValues allDone{{"RequestDone[1]", 1}, {"RequestDone[2]", 1}, {"RequestDone[3]", 1},
                                    {"RequestDone[4]", 1}, {"RequestDone[5]", 1}, {"RequestDone[6]", 1},
                                    {"RequestDone[7]", 1}};
    // clang-format off
    const Case cases[] = {
        {"the seventh of fourteen", core::kEasy, Die(7, 14), {}, {{"RequestDraw", 7}}, "Landowners"},
        {"the eighth of fourteen", core::kEasy, Die(8, 14), {}, {{"RequestDraw", 8}}, nullptr},
        {"the highest on Easy", core::kEasy, 0.9999, {}, {{"RequestDraw", 14}}, nullptr},
        {"the highest on Hard", core::kHard, 0.9999, {}, {{"RequestDraw", 12}}, nullptr},
        {"the workers", core::kHard, 0, {}, {{"RequestDraw", 1}, {"RequestFaction", 1}}, "Workers"},
        {"the peasants", core::kHard, Die(4, 12), {}, {{"RequestDraw", 4}, {"RequestFaction", 2}},
         "Peasants"},
        {"the next free one", core::kNormal, Die(4, 13), {{"RequestDone[4]", 1}}, {{"RequestDraw", 5},
         {"RequestFaction", 3}, {"RequestDone[5]", 1}}, "Businessmen"},
        {"round the corner", core::kNormal, Die(7, 13), {{"RequestDone[7]", 1}, {"RequestDone[1]", 1}},
         {{"RequestDraw", 2}, {"RequestDone[2]", 1}}, "Workers"},
        {"all anew", core::kNormal, Die(6, 13), allDone, {{"RequestDone[1]", 0}, {"RequestDone[6]", 1},
         {"RequestDone[7]", 0}}, "Industrialists"},
        {"a free release", core::kNormal, Die(3, 13), {}, {{"RequestDraw", 3}, {"RequestDone[3]", 1}},
         "Workers"},
        {"nobody to release", core::kNormal, Die(3, 13), {{"Population[Prisoners]", 0}},
         {{"RequestDraw", 8}, {"RequestDone[3]", 0}}, nullptr},
        {"nobody to release, in turn", core::kNormal, Die(2, 13), {{"Population[Prisoners]", 0},
         {"RequestDone[2]", 1}}, {{"RequestDraw", 3}, {"RequestDone[3]", 1}}, nullptr},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        TestGame game;
        game.StartGame(c.level);
        game.Set(c.before);
        game.Tell({c.r});
        game.Call("Request");
        game.Expect(c.after);
        if (c.asker == nullptr) {
            EXPECT_FALSE(game.Shown("frmShow2"));
            EXPECT_TRUE(game.Form("frmMain").Enabled());
        } else {
            EXPECT_EQ(game.Text("frmShow2.Label8"), std::string("A request from the ") + c.asker);
            EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "frmMain waits behind frmShow2");
            EXPECT_FALSE(game.Form("frmMain").Enabled());
        }
    }
}

TEST(Requests, HaveTheirEffectsWhenGranted)
{
    struct Case {
        int request;
        test::FieldValues after;
    };
    // clang-format off
    const Case cases[] = {
        {1, {{"IncomePerPerson[Workers]", 147}, {"IncomePerPerson[Industrialists]", 59'214}}},
        {2, {{"ExpPolice", 6'133'765}, {"ExpArmy", 9'867'440}, {"ActionDone[9]", 1},
         {"ActionDone[10]", 1}, {"ActionDone[11]", 1}, {"ActionDone[12]", 1}}},
        {3, {{"Population[Workers]", 2'206'140 + 23'995}, {"Population[Peasants]", 2'997'840 + 23'995},
         {"Population[Guerrillas]", 1013 + 8998}, {"Population[Army]", 119'554 + 2999}, {"ExpPrisons", 0},
         {"Strength[Prisoners]", 0}, {"Population[Prisoners]", 0}, {"Opposition[Prisoners]", 0}}},
        {4, {{"IncomePerPerson[Peasants]", 94}, {"IncomePerPerson[Landowners]", 39'508}}},
        {5, {{"IncomePerPerson[Workers]", 133}, {"IncomePerPerson[Industrialists]", 65'448}}},
        {6, {{"IncomePerPerson[Workers]", 133}, {"IncomePerPerson[Industrialists]", 65'448}}},
        {7, {{"ExpState", 33'000'000}, {"GuerrillaWar", 1}, {"War", 1}, {"ActionDone[18]", 1}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE("request " + std::to_string(c.request));
        TestGame game;
        test::WriteBlankCards(game.folder);
        game.StartGame();
        DrawRequest(game, c.request);
        EXPECT_EQ(game.Text("frmShow2.Label10"), "the title");
        EXPECT_EQ(game.Text("frmShow2.Label13"), "the effects");
        const core::GameState before = game.State();
        game.TakeSounds();
        game.Click("frmShow2.Command1");
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        EXPECT_EQ(game.Banner(), "the result");
        game.Expect(c.after);
        EXPECT_EQ(test::Changed(before, game.State()).size(), c.after.size());
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
    }
}

// No request runs FixNum: strengths wait for the next one.
TEST(Requests, AddTheCardAsItIs)
{
    TestGame game;
    game.folder.Write("Actions/M6", test::FlatCard(-100));
    game.StartGame();
    DrawRequest(game, 6);
    EXPECT_EQ(game.Text("frmShow2.lblPER(18)"), "-100");
    EXPECT_EQ(game.Text("frmShow2.lblPER(2)"), "0");
    game.Click("frmShow2.Command1");
    game.Expect({{"Strength[Workers]", -70},
                 {"Strength[Prisoners]", -99},
                 {"Opposition[Police]", -97},
                 {"AmericanHostility", -50},
                 {"TotalStrength", 263}});
}

TEST(Requests, AngerTheFactionWhenRefused)
{
    for (const auto& [request, opposition] :
         {std::pair{1, "Opposition[Workers]"}, std::pair{4, "Opposition[Peasants]"},
          std::pair{5, "Opposition[Businessmen]"}, std::pair{6, "Opposition[Industrialists]"},
          std::pair{7, "Opposition[Landowners]"}}) {
        TestGame game;
        game.StartGame();
        game.Set({{opposition, 15}});
        DrawRequest(game, request);
        const core::GameState before = game.State();
        game.Press(ui::Key::Escape);  // no way out but an answer
        ASSERT_TRUE(game.Shown("frmShow2"));
        game.Click("frmShow2.Command3");
        game.Expect({{opposition, 25}});
        EXPECT_THAT(test::Changed(before, game.State()), ElementsAre(opposition));
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
    }
}

TEST(Requests, ThatAreBrokenGiveTheMainScreenBack)
{
    for (const bool atFirst : {true, false}) {
        TestGame game;
        game.StartGame();
        if (atFirst) {
            game.folder.Write("Actions/M1", "1,2");
        }
        DrawRequest(game, 1);
        const core::GameState before = game.State();
        if (!atFirst) {
            game.folder.Write("Actions/M1", "1,2");
            game.Click("frmShow2.Command1");
        }
        EXPECT_THAT(game.Banner(), HasSubstr("this month's request cannot be read. Actions/M1"));
        EXPECT_THAT(test::Changed(before, game.State()), IsEmpty());
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
    }
}

}  // namespace
