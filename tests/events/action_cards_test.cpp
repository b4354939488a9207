#include "events/play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using test::TestGame;
using testing::ElementsAre;
using testing::HasSubstr;

// Whether a step may change this element besides what it is for.
bool IsBookkeeping(const std::string& name)
{
    return name.starts_with("StrengthPct") || name == "TotalStrength" || name == "ActionChoice";
}

TEST(ActionCards, HaveTheirOwnEffects)
{
    struct Case {
        int action;
        test::FieldValues before;
        test::FieldValues after;
    };
    // clang-format off
    const Case cases[] = {
        {1, {}, {{"ExpEducation", 3'214'573}, {"ActionDone[2]", 1}}},
        {2, {}, {{"ExpEducation", 3'928'923}, {"ActionDone[1]", 1}}},
        {3, {{"ExpHealth", 1000}}, {{"ExpHealth", 900}, {"ActionDone[4]", 1}}},
        {4, {{"ExpHealth", 1000}}, {{"ExpHealth", 1100}, {"ActionDone[3]", 1}}},
        {5, {{"ExpAllowances", 1000}}, {{"ExpAllowances", 900}, {"ActionDone[6]", 1}}},
        {6, {{"ExpAllowances", 1000}}, {{"ExpAllowances", 1100}, {"ActionDone[5]", 1}}},
        {7, {{"ExpArmy", 1000}}, {{"ExpArmy", 900}, {"ActionDone[8]", 1}}},
        {8, {{"ExpArmy", 1000}}, {{"ExpArmy", 1100}, {"ActionDone[7]", 1}}},
        {9, {{"ExpPolice", 1000}}, {{"ExpPolice", 900}, {"ActionDone[10]", 1}}},
        {10, {{"ExpPolice", 1000}}, {{"ExpPolice", 1100}, {"ActionDone[9]", 1}}},
        {11, {{"ExpUnemployment", 1000}}, {{"ExpUnemployment", 900}, {"ActionDone[12]", 1}}},
        {12, {{"ExpUnemployment", 1000}}, {{"ExpUnemployment", 1100}, {"ActionDone[11]", 1}}},
        {15, {{"Money", 1}}, {{"Money", 150'000'001}, {"IslandsSold", 1}}},
        {15, {{"Money", 2'100'000'000}}, {{"Money", 2'147'483'647}, {"IslandsSold", 1}}},
        {16, {{"Population[PersonalArmy]", 500}, {"Strength[PersonalArmy]", 5}},
         {{"Population[PersonalArmy]", 1000}, {"Strength[PersonalArmy]", 10},
         {"ExpPersonalArmy", 7'000'000}}},
        {17, {{"Money", 1}}, {{"Money", -4'999'999}}},
        {18, {{"ExpState", 1001}, {"Strength[Guerrillas]", 20}, {"Population[Guerrillas]", 1000},
         {"Population[Army]", 100'000}}, {{"ExpState", 1502}, {"GuerrillaWar", 1}, {"War", 1},
         {"Population[Guerrillas]", 750}, {"Population[Army]", 99'200}, {"Victims", 1050}}},
        {19, {{"Population[Prisoners]", 7}, {"Strength[Prisoners]", 3}, {"Victims", 2}}, {{"Victims", 9},
         {"ExpPrisons", 0}, {"Strength[Prisoners]", 0}, {"Population[Prisoners]", 0},
         {"Opposition[Prisoners]", 0}}},
        {20, {}, {{"Population[Workers]", 2'206'140 + 23'995},
         {"Population[Peasants]", 2'997'840 + 23'995}, {"Population[Guerrillas]", 1013 + 8998},
         {"Population[Army]", 119'554 + 2999}, {"ExpPrisons", 0}, {"Strength[Prisoners]", 0},
         {"Population[Prisoners]", 0}, {"Opposition[Prisoners]", 0}}},
        {21, {}, {{"Population[Prisoners]", 80'008}, {"ExpPrisons", 3'200'320},
         {"Population[Workers]", 2'206'140 - 10'211}, {"Population[Peasants]", 2'997'840 - 9789},
         {"Population[Businessmen]", 50'020 - 11}, {"Population[Industrialists]", 4813 - 6},
         {"Population[Landowners]", 10'187 - 4}}},
        {22, {}, {}},
        {25, {{"Money", 0}}, {{"Money", -10'000'000}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE("action " + std::to_string(c.action));
        TestGame game;
        test::WriteBlankCards(game.folder);
        game.StartGame();
        game.Set(c.before);
        const core::GameState before = game.State();

        test::TakeAction(game, c.action);

        const std::string done = "ActionDone[" + std::to_string(c.action) + "]";
        game.Expect(c.after);
        game.Expect({{done, 1}});
        EXPECT_EQ(game.Banner(), "the result");
        for (const std::string& name : test::Changed(before, game.State())) {
            const bool expected = name == done || IsBookkeeping(name) ||
                                  std::any_of(c.after.begin(), c.after.end(),
                                              [&name](const auto& field) { return field.first == name; });
            EXPECT_TRUE(expected) << name << " changed";
        }
    }
}

TEST(ActionCards, ShowTheCardAsWrittenAndApplyItsNumbers)
{
    TestGame game;
    game.folder.Write("Actions/22", "1,-2,0,-99,\"+3\",0,0,0,7\r\n-4,5,0,0,0,0,0,0,6,-8,"
                                    "\"a test, with a comma\"\r\n\"the effects\"\r\n\"the result\"");
    game.StartGame();
    game.Click("frmMain.Label5(0)");
    game.Click("frmActions.Command1(22)");
    EXPECT_THAT(game.Front(), ElementsAre("frmShow", "frmMain", "frmMonthBanner"));
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav", "sound/click.wav"));
    EXPECT_EQ(game.Text("frmShow.Label8"), "Police report for a test, with a comma");
    EXPECT_EQ(game.Text("frmShow.Label13"), "the effects");
    const struct {
        const char* label;
        const char* text;
        ui::Mark mark;
    } cells[] = {
        {"frmShow.lblPER(10)", "1", ui::Mark::Up},    {"frmShow.lblPER(11)", "-2", ui::Mark::Down},
        {"frmShow.lblPER(12)", "0", ui::Mark::None},  {"frmShow.lblPER(13)", "-99", ui::Mark::Down},
        {"frmShow.lblPER(14)", "+3", ui::Mark::Up},   {"frmShow.lblPER(18)", "7", ui::Mark::Up},
        {"frmShow.lblPER(30)", "-4", ui::Mark::Down}, {"frmShow.lblPER(38)", "6", ui::Mark::Up},
        {"frmShow.lblPER(1)", "-8", ui::Mark::Down},  {"frmShow.lblPER(2)", "0", ui::Mark::None},
    };
    for (const auto& cell : cells) {
        SCOPED_TRACE(cell.label);
        EXPECT_EQ(game.Text(cell.label), cell.text);
        EXPECT_EQ(game.Control(cell.label).Now().mark, cell.mark);
    }

    game.Set({{"Population[Prisoners]", 0}, {"Strength[Prisoners]", 0}});
    game.Click("frmShow.Command3");
    game.Expect({{"Strength[Workers]", 31},
                 {"Strength[Peasants]", 26},
                 {"Strength[Industrialists]", 1},  // 35 - 99, and then the floor
                 {"Strength[Landowners]", 43},
                 {"Strength[Prisoners]", 0},  // there are none to be strong
                 {"Opposition[Workers]", 41},
                 {"Opposition[Prisoners]", 1006},
                 {"AmericanHostility", 42},
                 {"ActionDone[22]", 1}});
}

TEST(ActionCards, AreCancelledWithoutATrace)
{
    TestGame game;
    game.StartGame();
    const core::GameState before = game.State();
    game.Click("frmMain.Label5(0)");
    game.Click("frmActions.Command1(7)");
    game.TakeSounds();
    game.Press(ui::Key::Escape);
    EXPECT_THAT(game.Front(), ElementsAre("frmActions", "frmMain", "frmMonthBanner"));
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    game.Click("frmActions.Command1(7)");
    game.Click("frmMain.Label5(3)");  // the menu closes the card
    EXPECT_THAT(game.Front(), ElementsAre("frmArmy", "frmMain", "frmMonthBanner"));
    EXPECT_THAT(test::Changed(before, game.State()), ElementsAre("ActionChoice"));
}

TEST(ActionCards, WithFractionsGiveSumsRoundedHalfToEven)
{
    TestGame game;
    game.StartGame();
    game.folder.Write("Actions/7", "0.5,1.5,-2.5,\"+3\",0,0,0,0,0,0,0,0,0,0,0,0,0,0,99999,\"a\",\"b\",\"c\"");
    game.Set({{"Strength[Workers]", 30}, {"Strength[Peasants]", 30}, {"Strength[Businessmen]", 30}});
    game.Set({{"Strength[Industrialists]", 30}});
    game.Click("frmMain.Label5(0)");
    game.Click("frmActions.Command1(7)");
    EXPECT_EQ(game.Text("frmShow.lblPER(10)"), "0.5");
    EXPECT_EQ(game.Text("frmShow.lblPER(13)"), "+3");
    game.Click("frmShow.Command3");
    game.Expect({{"Strength[Workers]", 30},
                 {"Strength[Peasants]", 32},
                 {"Strength[Businessmen]", 28},
                 {"Strength[Industrialists]", 33},
                 {"AmericanHostility", 32767}});
}

TEST(ActionCards, ThatAreBrokenChangeNothing)
{
    const struct {
        const char* why;
        const char* content;  // null: the file is missing
        const char* told;
    } cases[] = {
        {"missing", nullptr, "Actions/7: cannot be read"},
        {"too short for the screen", "1,2,3", "expected 22 items, found 3"},
        {"without its last text", "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,\"a\",\"b\"", "found 21"},
        {"with a line too many", "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\n0,\"a\",\"b\",\"c\"", "found 23"},
        {"a text for a number", "0,0,much,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,\"a\",\"b\",\"c\"",
         "item 3, the strength of the Businessmen: expected a number, found \"much\""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        // Broken from the start, or while the president was reading it.
        for (const bool atFirst : {true, false}) {
            TestGame game;
            game.StartGame();
            const auto spoil = [&] {
                game.folder.Remove("Actions/7");
                if (c.content != nullptr) {
                    game.folder.Write("Actions/7", c.content);
                }
            };
            const core::GameState before = game.State();
            game.Click("frmMain.Label5(0)");
            if (atFirst) {
                spoil();
            }
            game.Click("frmActions.Command1(7)");
            if (!atFirst) {
                spoil();
                game.Click("frmShow.Command3");
            }
            EXPECT_THAT(game.Banner(), HasSubstr("Mr.President, the card of this action cannot be read. "));
            EXPECT_THAT(game.Banner(), HasSubstr(c.told));
            EXPECT_THAT(test::Changed(before, game.State()), ElementsAre("ActionChoice"));
            EXPECT_THAT(game.Front(), ElementsAre("frmMain", "frmMonthBanner"));
            EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");  // the game goes on
        }
    }
}

TEST(ActionCards, LetTheAmericansAnswer)
{
    const struct {
        int hostility;
        int money, wait;
        const char* told;
    } cases[] = {
        {39, 50'000'001, 12, "Americans will give you an aid of 50.000.000 dollars!"},
        {40, 1, 0, "Americans say no to your request!"},
    };
    for (const auto& c : cases) {
        TestGame game;
        game.folder.Write("Actions/24", test::FlatCard(1));
        game.StartGame();
        game.Set({{"AmericanHostility", c.hostility - 1}, {"Money", 1}});  // the card adds one
        test::TakeAction(game, 24);
        EXPECT_EQ(game.Banner(), c.told);
        game.Expect({{"Money", c.money},
                     {"AidWait", c.wait},
                     {"AidAsked", 1},
                     {"ActionDone[24]", 1},
                     {"Opposition[Police]", 4}});
    }
}

// The choice of a chief takes as long as it takes; what closes the action waits for it.
TEST(ActionCards, AreFinishedWhenTheChiefIsChosen)
{
    for (const std::string action : {"13", "14"}) {
        SCOPED_TRACE("action " + action);
        TestGame game;
        test::WriteBlankCards(game.folder);
        game.StartGame();
        game.Click("frmMain.Label5(0)");
        game.Click("frmActions.Command1(" + action + ")");
        game.Set({{"Strength[Workers]", 0}});
        game.Click("frmShow.Command3");
        EXPECT_EQ(game.Banner(), "the result");
        game.Expect({{"ActionDone[" + action + "]", 0}, {"Strength[Workers]", 0}});
        test::PickChief(game);
        game.Expect({{"ActionDone[" + action + "]", 1}, {"Strength[Workers]", 1}});
    }
}

}  // namespace
