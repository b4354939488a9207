// How a game ends: the hall of fame, the way back to the title, and the menu that leads there early.
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST(Ending, LeadsThroughTheHallOfFameBackToTheTitle)
{
    test::TestGame game;
    game.StartGame(core::kHard, "Remedios");
    game.Set({{"SwissBank", 900'000'000}, {"MonthsInPower", 30}, {"AttemptStrength[3][1]", 4}});
    game.Form("frmArmy").ShowModal([] { FAIL() << "the old game's story went on"; });
    game.Screens().frmMain.Timer4.SetInterval(4000);
    game.Wait(4000);
    EXPECT_TRUE(game.Shown("frmTop102"));
    EXPECT_EQ(game.Banner(), " ");
    EXPECT_THAT(game.Text("frmTop102.Label1(0)"),
                StartsWith("President Remedios made it alive at hard level"));
    EXPECT_THAT(game.folder.Read("Data/Top"),
                StartsWith("\"Remedios\"\r\n900000000\r\n30\r\n0\r\n0\r\n0\r\n2\r\n"));
    game.Expect({{"HallShown", 1}});
    game.Screens().frmArmy.Unload();
    game.Screens().frmMain.Timer2.SetInterval(5000);
    game.Form("frmAbout").Show();
    game.TakeSounds();

    game.Click("frmTop102.Label1(4)");
    EXPECT_THAT(game.TakeSounds(), IsEmpty());
    EXPECT_THAT(game.Front(), ElementsAre("frmlogo", "frmMonthBanner"));
    EXPECT_EQ(game.Banner(), " ");
    EXPECT_EQ(game.Desktop().NextDue(), std::nullopt);
    core::GameState fresh;
    fresh.DisplayModeSet = 1;
    fresh.Difficulty = 1;
    fresh.PlayerName = "Anonymous";
    EXPECT_THAT(test::Changed(fresh, game.State()), ElementsAre("AttemptStrength[3][1]"));

    game.Click("frmlogo");
    EXPECT_EQ(game.host.switched, 1);
    EXPECT_EQ(game.Text("frmStart.Command2"), "Level Normal");
    game.Click("frmStart.Command1");
    game.Click("frmName.Command3");
    game.Expect({{"MonthsInPower", 1}, {"Money", 50'000'000}, {"Difficulty", 1}});
}

TEST(Ending, OfADeadPresidentCountsForNothing)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"SwissBank", 900'000'000}, {"Dead", 1}});
    const std::string before = game.folder.Read("Data/Top");
    game.Call("TopTen");
    EXPECT_EQ(game.folder.Read("Data/Top"), before);
}

TEST(Ending, TellsWhatIsWrongWithTheListOnTheListItself)
{
    test::TestGame game;
    game.folder.Write("Data/Top", "a poem");
    game.StartGame();
    game.Call("TopTen");
    const std::string told =
        "Mr.President, the old list cannot be read. Data/Top, line 1: expected a text in "
        "quotes for a name, found \"a poem\". It is kept as Data/Top.unreadable and a "
        "fresh one begun.";
    EXPECT_EQ(game.Text("frmTop102.Label3"), told);
    EXPECT_TRUE(game.Visible("frmTop102.Label3"));
    EXPECT_EQ(game.Banner(), told);
    game.Click("frmTop102");
    EXPECT_THAT(game.Front(), ElementsAre("frmlogo", "frmMonthBanner"));
}

TEST(Ending, KeepsItsListInTheUsersFolderWhereTheProgramsIsClosed)
{
    test::TemporaryFolder user;
    test::TestGame game(files::ProgramFolder(test::Assets(), user.Path("quenvale")));
    game.StartGame();
    game.Set({{"SwissBank", 900'000'000}});
    game.Call("TopTen");
    EXPECT_THAT(user.Read("quenvale/Data/Top"), StartsWith("\"Ada\""));
    EXPECT_THAT(user.Read("quenvale/Data/Top"), HasSubstr("Ladislao the Patient"))
        << "the shipped ones follow";
    game.Click("frmTop102");
    game.StartGame();
    game.Set({{"SaveSlot", 2}});
    game.Call("save");
    EXPECT_TRUE(user.Has("quenvale/Save/Save2"));
    EXPECT_FALSE(std::filesystem::exists(test::Assets() / "Save"));
}

class OptionsMenu : public testing::Test {
protected:
    void Choose(int index)
    {
        game_.Click("frmMain.Label5(5)");
        game_.TakeSounds();
        game_.Click("frmOptions.Label5(" + std::to_string(index) + ")");
        EXPECT_THAT(game_.TakeSounds(), ElementsAre("sound/click.wav"));
    }
    test::TestGame game_;
};

TEST_F(OptionsMenu, CarriesOutItsCommands)
{
    game_.StartGame(core::kNormal, "Remedios");
    const std::string list = game_.folder.Read("Data/Top");
    Choose(5);
    EXPECT_THAT(game_.Front(), ElementsAre("frmTop102", "frmMain", "frmMonthBanner"));
    EXPECT_THAT(game_.Text("frmTop102.Label1(0)"),
                StartsWith("President Ladislao the Patient made it alive"));
    EXPECT_EQ(game_.Text("frmTop102.Label6"), "TOP-TEN  BASTARDS");
    game_.Click("frmTop102");
    EXPECT_THAT(game_.Front(), ElementsAre("frmMain", "frmMonthBanner")) << "only looked at";
    game_.Expect({{"MonthsInPower", 1}, {"HallShown", 0}, {"PlayerName", "Remedios"}});
    EXPECT_EQ(game_.folder.Read("Data/Top"), list);

    Choose(1);
    EXPECT_THAT(game_.Front(), ElementsAre("frmAbout", "frmMain", "frmMonthBanner"));
    game_.Click("frmAbout.Label5");
    Choose(3);
    EXPECT_TRUE(game_.Shown("frmOptions"));
    EXPECT_THAT(game_.Banner(), HasSubstr("Data/Manual.htm"));
    EXPECT_EQ(game_.Text("frmOptions.Label1"), game_.Banner()) << "the menu hides the banner";
    Choose(0);
    EXPECT_THAT(game_.Front(), ElementsAre("frmlogo", "frmMonthBanner"));
    game_.StartGame(core::kEasy, "");
    game_.Click("frmMain.Label5(5)");
    EXPECT_EQ(game_.Text("frmOptions.Label5(4)"), "History") << "nobody's name";
    Choose(2);
    EXPECT_TRUE(game_.host.ended);
    EXPECT_EQ(game_.host.restored, 1);
}

TEST_F(OptionsMenu, NamesThePlayerAndInvertsWhatIsUnderThePointer)
{
    game_.StartGame(core::kNormal, "Remedios");
    game_.Click("frmMain.Label5(5)");
    EXPECT_EQ(game_.Text("frmOptions.Label5(4)"), "Remedios");
    for (const int hovered : {3, 2, 7}) {
        game_.Hover("frmOptions.Label5(" + std::to_string(hovered) + ")");
        for (int i = 0; i < 8; ++i) {
            const auto& now = game_.Control("frmOptions.Label5(" + std::to_string(i) + ")").Now();
            EXPECT_EQ(now.back, i == hovered ? ui::Rgb(0x000000) : ui::Rgb(0xFFFF00)) << i;
            EXPECT_EQ(now.fore, i == hovered ? ui::Rgb(0xFFFFFF) : ui::Rgb(0x000000)) << i;
        }
    }
}

TEST_F(OptionsMenu, ShowsTheHistory)
{
    game_.StartGame();
    game_.Set({{"MonthsInPower", 10}, {"AssassinationAttempts", 1}, {"Victims", 2500}});
    Choose(4);
    EXPECT_THAT(game_.Front(), ElementsAre("frmHistory", "frmMain", "frmMonthBanner"));
    EXPECT_EQ(game_.Text("frmHistory.Label1"), "Mr.President's History and Score");
    EXPECT_EQ(game_.Text("frmHistory.lblScore"), "300");
    EXPECT_EQ(game_.Text("frmHistory.lblLevel"), "Normal");
    EXPECT_EQ(game_.Text("frmHistory.lblVictims"), "2,500");
}

TEST_F(OptionsMenu, TellsAListThatCannotBeReadAndLeavesIt)
{
    game_.folder.Write("Data/Top", "a poem");
    game_.StartGame();
    Choose(5);
    EXPECT_FALSE(game_.Shown("frmTop102"));
    EXPECT_THAT(game_.Banner(), HasSubstr("Data/Top, line 1: expected a text in quotes for a name"));
    EXPECT_EQ(game_.folder.Read("Data/Top"), "a poem");
}

}  // namespace
