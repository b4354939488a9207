// "Continue": what is kept when a month is closed, whose it is, and when it goes.
#include "persist/kept_game.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace {

using testing::HasSubstr;

constexpr const char* kKept = "Save/Continue";

void PlayMonths(test::TestGame& game, int months)
{
    for (int i = 0; i < months; ++i) {
        game.Set({{"Strength[Guerrillas]", 1}, {"Money", 90'000'000}});
        game.Click("frmMain.Label5(4)");
        game.Tell({0.999, 0.999});  // no event and no request
        game.Wait(3000);
        ASSERT_TRUE(game.Screens().frmMain.Enabled());
    }
}

void Restart(test::TestGame& game)
{
    game.Click("frmMain.Label5(5)");
    game.Click("frmOptions.Label5(0)");
}

// Another run of the program over the same folder.
struct NextRun : test::TestGame {
    explicit NextRun(test::TestGame& before) : TestGame(files::ProgramFolder(before.folder.Path("")))
    {
        game.Autosave(true);
        Click("frmlogo");
    }
};

struct Continuation : testing::Test {
    Continuation() { game.game.Autosave(true); }
    test::TestGame game;
};

TEST_F(Continuation, GivesBackTheWholeRecordInTheNextRun)
{
    game.StartGame(core::kHard, "Ada \"the 2nd\"");
    PlayMonths(game, 2);
    game.Set({{"IslandsSold", 2}, {"AirBase", 1}, {"RequestDraw", 3}, {"SwissBank", 77}});
    PlayMonths(game, 1);
    const core::GameState before = game.State();

    NextRun next(game);
    EXPECT_EQ(next.Text("frmStart.lblContinue"), "Ada \"the 2nd\", month 4, Hard");
    next.Set({{"SaveSlot", 2}});
    next.Click("frmStart.cmdContinue");
    EXPECT_THAT(next.Banner(), HasSubstr("Welcome back"));
    EXPECT_EQ(test::Changed(before, next.State()), std::vector<std::string>{"SaveSlot"});
    PlayMonths(next, 1);
    next.Expect({{"MonthsInPower", 5}});
}

TEST_F(Continuation, PassesToANewGameWithItsSecondMonth)
{
    game.StartGame(core::kNormal, "Ada");
    PlayMonths(game, 1);
    EXPECT_TRUE(game.folder.Has(kKept)) << "a free place is taken at once";
    Restart(game);
    game.StartGame(core::kNormal, "Bo");
    PlayMonths(game, 1);
    EXPECT_EQ(NextRun(game).Text("frmStart.lblContinue"), "Ada, month 2, Normal");
    PlayMonths(game, 1);
    EXPECT_EQ(NextRun(game).Text("frmStart.lblContinue"), "Bo, month 3, Normal");
}

TEST_F(Continuation, GoesWithItsOwnGameOnly)
{
    const auto die = [this] {
        game.Call("Timer6_Timer");
        game.Wait(60'000);
        ASSERT_TRUE(game.Shown("frmTop102"));
    };
    game.StartGame(core::kNormal, "Ada");
    PlayMonths(game, 2);
    Restart(game);
    game.StartGame(core::kNormal, "Bo");
    PlayMonths(game, 1);
    die();
    EXPECT_TRUE(game.folder.Has(kKept)) << "it is Ada's";
    game.Click("frmTop102");
    game.Click("frmlogo");
    game.Click("frmStart.cmdContinue");
    die();
    EXPECT_FALSE(game.folder.Has(kKept));
    EXPECT_FALSE(game.folder.Has(std::string(kKept) + ".sum"));
    EXPECT_FALSE(NextRun(game).Visible("frmStart.cmdContinue"));
}

TEST_F(Continuation, IsAskedForTwiceWhenSomebodyHasWrittenInIt)
{
    game.StartGame();
    PlayMonths(game, 1);
    std::string content = game.folder.Read(kKept);
    const std::size_t at = content.find("\"Money\",");
    game.folder.Write(kKept, content.insert(at + 8, "1"));
    NextRun next(game);
    next.Click("frmStart.cmdContinue");
    EXPECT_THAT(next.Text("frmStart.Label3"), HasSubstr("remembers it otherwise"));
    EXPECT_TRUE(next.Shown("frmStart"));
    next.Click("frmStart.cmdContinue");
    EXPECT_TRUE(next.Shown("frmMain"));

    game.folder.Write(kKept, "\"Strength[Workers]\",900000");
    NextRun broken(game);
    EXPECT_FALSE(broken.Visible("frmStart.cmdContinue"));
    EXPECT_THAT(broken.Text("frmStart.Label3"), HasSubstr("Save/Continue, line 1: expected a whole number"));
}

TEST_F(Continuation, WritesNothingUnlessItWasAskedTo)
{
    game.game.Autosave(false);
    game.StartGame();
    PlayMonths(game, 2);
    EXPECT_FALSE(game.folder.Has(kKept));
}

TEST_F(Continuation, TellsOnceThatAMonthCannotBeKept)
{
    game.StartGame();
    game.folder.Remove("Save");
    game.folder.Write("Save", "no folder");
    PlayMonths(game, 2);
    EXPECT_THAT(game.Banner(), HasSubstr("could not be kept"));
    PlayMonths(game, 1);
    EXPECT_EQ(game.Banner(), "You are in power for 4 months");
}

// Every value of the record, at random sizes, comes back from its own line.
TEST(WholeGame, ComesBackValueByValue)
{
    std::mt19937 random(7);
    for (int round = 0; round < 20; ++round) {
        core::GameState game;
        for (const core::Element& element : core::AllElements()) {
            const core::Value now = element.Get(game);
            const auto number = static_cast<std::int64_t>(random() % 3);
            element.Set(game, std::holds_alternative<std::string>(now)
                                  ? core::Value("Ñ \"\r\n" + std::to_string(number))
                              : std::holds_alternative<float>(now)
                                  ? core::Value(static_cast<float>(random()) / 7.0F)
                                  : core::Value(number));
        }
        const core::GameState ofTheProgram{
            .HallShown = game.HallShown, .DisplayModeSet = game.DisplayModeSet, .SaveSlot = game.SaveSlot};
        const auto items = files::ParseItems(persist::WriteWholeGame(game), kKept);
        ASSERT_TRUE(items);
        const auto read = persist::ReadWholeGame(*items, kKept, ofTheProgram);
        ASSERT_TRUE(read) << read.Error().Message();
        EXPECT_EQ(core::FirstDifference(game, *read), "");
    }
}

}  // namespace
