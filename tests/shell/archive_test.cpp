// Saving and loading by clicks, in good times and in bad.
#include "persist/archive.h"
#include "persist/saved_game.h"
#include "support/faulty_system.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class ArchiveScreens : public testing::Test {
protected:
    ArchiveScreens() { game_.StartGame(); }

    void Open(const char* item, const char* screen)
    {
        game_.Click("frmMain.Label5(5)");
        game_.Click(item);
        EXPECT_TRUE(game_.Shown(screen));
        EXPECT_FALSE(game_.Shown("frmOptions"));
        game_.TakeSounds();
    }
    void OpenSave() { Open("frmOptions.Label5(6)", "frmSave"); }
    void OpenLoad() { Open("frmOptions.Label5(7)", "frmLoad"); }
    void Save(int slot, const std::string& name)
    {
        OpenSave();
        game_.Click("frmSave.Option" + std::to_string(slot));
        game_.Type("frmSave.Text" + std::to_string(slot), name);
        game_.Click("frmSave.Command1");
    }
    std::array<std::string, 5> Names(const std::string& form)
    {
        std::array<std::string, 5> names;
        for (std::size_t i = 0; i < names.size(); ++i) {
            names[i] = game_.Text(form + ".Text" + std::to_string(i + 1));
        }
        return names;
    }

    test::TestGame game_;
};

TEST_F(ArchiveScreens, TellWhoGovernsInEachSlot)
{
    Save(2, "a bot's, without a name");
    game_.game.Autosave(true);
    game_.Set({{"MonthsInPower", 12}, {"PlayerName", std::string("Ada")}, {"Difficulty", 2}});
    Save(4, "ours");
    OpenLoad();
    EXPECT_THAT(game_.Text("frmLoad.lblAbout(1)"), testing::MatchesRegex("month 1, Normal. 20..-..-.."));
    EXPECT_THAT(game_.Text("frmLoad.lblAbout(3)"), StartsWith("Ada, month 12, Hard. "));
    EXPECT_EQ(game_.Text("frmLoad.lblAbout(0)"), "");
}

TEST_F(ArchiveScreens, SaveAndLoadAGame)
{
    game_.Set({{"Money", 123'456},
               {"SwissBank", 7'654'321},
               {"Victims", 2500},
               {"Difficulty", 2},
               {"MonthsInPower", 12},
               {"AssassinationAttempts", 3},
               {"Revolutions", 4},
               {"IslandsSold", 1}});
    OpenSave();
    EXPECT_THAT(Names("frmSave"), ElementsAre("", "Empty slot", "Empty slot", "Empty slot", "Empty slot"));
    game_.Click("frmSave.Option3");
    EXPECT_EQ(game_.Desktop().Focused(), &game_.Screens().frmSave.Text3);
    EXPECT_FALSE(game_.Control("frmSave.Text1").Now().enabled);
    game_.Desktop().EnterText("Before the \"elections\"");
    game_.Click("frmSave.Command1");
    EXPECT_EQ(game_.Banner(), "Game Saved");
    EXPECT_FALSE(game_.Shown("frmSave"));
    EXPECT_THAT(game_.TakeSounds(), ElementsAre("sound/click.wav", "sound/click.wav"));
    EXPECT_EQ(game_.folder.Read("Save/names"),
              "\"\"\r\n\"Empty slot\"\r\n\"Before the \"\"elections\"\"\"\r\n"
              "\"Empty slot\"\r\n\"Empty slot\"\r\n");
    const std::string saved = persist::WriteSavedGame(game_.State());
    EXPECT_EQ(game_.folder.Read("Save/Save3"), saved);
    for (const auto& written : std::filesystem::directory_iterator(game_.folder.Path("Save"))) {
        EXPECT_THAT(persist::Archive::Files(),
                    testing::Contains("Save/" + written.path().filename().string()));
    }

    game_.Set({{"Money", 1},
               {"SwissBank", 1},
               {"Difficulty", 0},
               {"PlayerName", "Eva"},
               {"IslandsSold", 3},
               {"ArmyChiefs[0][1]", "NOBODY"},
               {"SaveSlot", 0}});
    OpenLoad();
    EXPECT_EQ(game_.Text("frmLoad.Text3"), "Before the \"elections\"");
    game_.Click("frmLoad.Option3");
    game_.Click("frmLoad.Command1");
    EXPECT_THAT(game_.TakeSounds(), ElementsAre("sound/click.wav", "sound/click.wav"));
    EXPECT_THAT(game_.Front(), ElementsAre("frmGameLoaded", "frmMain", "frmMonthBanner"));
    EXPECT_EQ(persist::WriteSavedGame(game_.State()), saved);
    game_.Expect({{"PlayerName", "Eva"}, {"IslandsSold", 3}, {"SaveSlot", 3}});
    const std::pair<const char*, const char*> figures[] = {
        {"lblLevel", "Hard"},
        {"lblMonths", "12"},
        {"lblSBank", "7,654,321"},
        {"lblAT", "3"},
        {"lblRev", "4"},
        {"lblScore", "0"},
        {"lblVictims", "2,500"},
        {"Label1", "Game Loaded "},
        {"Label5", "Dravik's Victims:"},
    };
    for (const auto& [label, text] : figures) {
        EXPECT_EQ(game_.Text(std::string("frmGameLoaded.") + label), text);
    }
    game_.Click("frmMain.Label5(3)");
    EXPECT_FALSE(game_.Shown("frmGameLoaded"));
}

// The month that was left is not the loaded game's: nothing of it is told at that one's end.
TEST_F(ArchiveScreens, LeaveTheOtherGamesMonthBehind)
{
    Save(1, "Quiet");
    game_.game.GetJournal().Add(core::Kind::War);
    OpenLoad();
    game_.Click("frmLoad.Option1");
    game_.Click("frmLoad.Command1");
    EXPECT_TRUE(game_.Shown("frmGameLoaded"));
    EXPECT_TRUE(game_.game.GetJournal().Notes().empty());
}

TEST_F(ArchiveScreens, AskBeforeAUsedSlotIsWrittenOver)
{
    Save(2, "first");
    const std::string first = game_.folder.Read("Save/Save2");
    game_.Set({{"Money", 5}});
    OpenSave();
    game_.Click("frmSave.Option2");
    game_.Type("frmSave.Text2", "second");
    game_.Press(ui::Key::Return);
    EXPECT_EQ(game_.Text("frmSave.Command1"), "Overwrite?");
    game_.Press(ui::Key::Return);
    EXPECT_TRUE(game_.folder.Read("Save/Save2") == first) << "a key held down wrote over it";
    game_.Click("frmSave.Option4");
    EXPECT_EQ(game_.Text("frmSave.Command1"), "Save") << "another slot, another question";
    game_.Click("frmSave.Option2");
    game_.Click("frmSave.Command1");
    game_.Click("frmSave.Command1");
    EXPECT_EQ(game_.Banner(), "Game Saved");
    EXPECT_FALSE(game_.folder.Read("Save/Save2") == first);
    OpenSave();
    EXPECT_THAT(Names("frmSave"), ElementsAre("", "second", "Empty slot", "Empty slot", "Empty slot"));
    EXPECT_EQ(game_.Text("frmSave.Command1"), "Save");
    game_.Press(ui::Key::Escape);
    EXPECT_FALSE(game_.Shown("frmSave"));
}

TEST_F(ArchiveScreens, TellWhatIsMissing)
{
    struct Case {
        const char* why;
        int slot;
        std::string file;  // of slot 3
        const char *button, *told;
    };
    const Case cases[] = {
        {"no slot to save to", 0, "", "frmSave.Command1", "until you point at one. Nothing was saved."},
        {"no slot to load", 0, "", "frmLoad.Command1", "until you point at one. Nothing was loaded."},
        {"an empty slot", 3, "", "frmLoad.Command1", "slot 3 is empty. Nothing was loaded."},
        {"a short file", 3, "1\r\n2\r\n", "frmLoad.Command1",
         "Save/Save3, line 2: expected 250 records, found 2. Nothing was loaded"},
        {"a wrong file", 3, "one\r\n", "frmLoad.Command1", "Save/Save3, line 1: expected a number"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        game_.folder.Remove("Save");
        if (!c.file.empty()) {
            game_.folder.Write("Save/Save3", c.file);
        }
        game_.Set({{"SaveSlot", c.slot}});
        const bool load = std::string(c.button) == "frmLoad.Command1";
        load ? OpenLoad() : OpenSave();
        const core::GameState before = game_.State();
        game_.Click(c.button);
        EXPECT_THAT(game_.Banner(), AllOf(StartsWith("Mr.President, "), HasSubstr(c.told)));
        EXPECT_EQ(game_.Shown(load ? "frmLoad" : "frmSave"), c.slot == 0) << "stays until a slot is chosen";
        EXPECT_EQ(core::FirstDifference(before, game_.State()), "");
    }
    game_.folder.Remove("Save");
    game_.Call("Load");
    EXPECT_THAT(game_.Banner(), HasSubstr("slot 3 is empty"));
}

// What the archive remembers otherwise is loaded by a second press only, and by its routine at once.
TEST_F(ArchiveScreens, AskBeforeAGameIsLoadedThatSomebodyHasWrittenIn)
{
    const auto edit = [this] {
        std::string game = game_.folder.Read("Save/Save2");
        game_.folder.Write("Save/Save2", game.replace(0, game.find('\r'), "77"));
    };
    Save(2, "mine");
    edit();
    OpenLoad();
    game_.Click("frmLoad.Option2");
    game_.Click("frmLoad.Command1");
    EXPECT_EQ(game_.Text("frmLoad.Label2"), "The archive remembers it otherwise. Load it all the same?");
    game_.Press(ui::Key::Return);
    EXPECT_TRUE(game_.Shown("frmLoad")) << "a key held down loaded it";
    game_.Click("frmLoad.Option3");
    EXPECT_EQ(game_.Text("frmLoad.Label2"), "") << "another slot";
    game_.Click("frmLoad.Option2");
    game_.Click("frmLoad.Command1");
    game_.Click("frmLoad.Command1");
    EXPECT_TRUE(game_.Shown("frmGameLoaded"));
    game_.Expect({{"Strength[Workers]", 77}});

    game_.Set({{"Strength[Workers]", 1}});
    game_.Call("Load");
    game_.Expect({{"Strength[Workers]", 77}});
    game_.Set({{"Strength[Workers]", 1}});
    game_.folder.Remove("Save/Save2.sum");
    OpenLoad();
    game_.Click("frmLoad.Command1");
    game_.Expect({{"Strength[Workers]", 77}});
}

TEST_F(ArchiveScreens, KeepNamesThatCannotBeReadAndSaveAllTheSame)
{
    game_.folder.Write("Save/names", "\"a\"\r\n\"b\"\r\n3\r\n");
    OpenSave();
    const std::string told =
        "Mr.President, the slots' names cannot be used. Save/names, line 3: expected a text "
        "in quotes for the name of slot 3, found \"3\". The games themselves are well.";
    EXPECT_EQ(game_.Text("frmSave.Label2"), told);
    EXPECT_EQ(game_.Banner(), told);
    EXPECT_THAT(Names("frmSave"), ElementsAre("", "Empty slot", "Empty slot", "Empty slot", "Empty slot"));
    game_.Click("frmSave.Option1");
    game_.Click("frmSave.Command1");
    EXPECT_EQ(game_.Banner(), "Game Saved");
    EXPECT_EQ(game_.folder.Read("Save/names.unreadable"), "\"a\"\r\n\"b\"\r\n3\r\n");
    OpenLoad();
    EXPECT_EQ(game_.Text("frmLoad.Label2"), "");
}

// Both games have the screen open; each names its own slot.
TEST_F(ArchiveScreens, LeaveTheNamesThatAnotherGameGives)
{
    OpenSave();
    game_.folder.Write("Save/names", "\"one\"\r\n\"two\"\r\n\"three\"\r\n\"four\"\r\n\"five\"\r\n");
    game_.Type("frmSave.Text5", "mine too");
    game_.Click("frmSave.Option3");
    game_.Type("frmSave.Text3", "mine");
    game_.Click("frmSave.Command1");
    OpenLoad();
    EXPECT_THAT(Names("frmLoad"), ElementsAre("one", "two", "mine", "four", "mine too"));
}

TEST_F(ArchiveScreens, OpenStraightFromTheStartAndLeadBack)
{
    game_.Set({{"Money", 4321}});
    Save(5, "later");
    game_.folder.Write("Save/Save4", "broken\r\n");
    game_.Click("frmMain.Label5(5)");
    game_.Click("frmOptions.Label5(0)");
    game_.Click("frmlogo");
    game_.Click("frmStart.Command4");
    EXPECT_FALSE(game_.Shown("frmName"));
    EXPECT_FALSE(game_.Shown("frmStart"));
    EXPECT_EQ(game_.Text("frmLoad.Text5"), "later");
    const std::pair<const char*, const char*> refused[] = {
        {"", "until you point at one. Nothing was loaded."},
        {"frmLoad.Text3", "slot 3 is empty"},
        {"frmLoad.Option4", "Save/Save4, line 1: expected a number"},
    };
    for (const auto& [choice, told] : refused) {
        SCOPED_TRACE(told);
        if (*choice != '\0') {
            game_.Click(choice);
        }
        game_.Click("frmLoad.Command1");
        EXPECT_THAT(game_.Text("frmLoad.Label2"), HasSubstr(told));
        EXPECT_FALSE(game_.Shown("frmMain")) << "a game was begun for it";
    }
    game_.Click("frmLoad.Command2");
    EXPECT_TRUE(game_.Shown("frmStart"));
    game_.Click("frmStart.Command4");
    game_.Click("frmLoad.Text5");
    game_.Click("frmLoad.Command1");
    EXPECT_THAT(game_.Front(), ElementsAre("frmGameLoaded", "frmMain", "frmMonthBanner"));
    game_.Expect({{"Money", 4321}, {"SaveSlot", 5}});
}

// A game in its first month over a system of the test's own.
template <class System> struct GameOver {
    GameOver()
    {
        folder.FillWithAssets();
        game.Start();
        for (ui::Control* control : std::initializer_list<ui::Control*>{
                 &screens.frmlogo.Image1, &screens.frmStart.Command1, &screens.frmName.Command3}) {
            EXPECT_EQ(desktop.Click(*control), std::nullopt);
        }
    }

    // Into the first slot, over what is there; what the file ought to hold.
    std::string Save(std::int64_t money)
    {
        game.State().Money = money;
        desktop.Dispatch(*game.FindRoutine("ProSave"));
        desktop.Click(screens.frmSave.Option1);
        desktop.Click(screens.frmSave.Command1);
        if (screens.frmSave.Command1.Text() == "Overwrite?") {
            desktop.Click(screens.frmSave.Command1);
        }
        return persist::WriteSavedGame(game.State());
    }

    test::TemporaryFolder folder;
    media::RecordingHost host;
    std::unique_ptr<System> owned = std::make_unique<System>();
    System& system = *owned;
    Game game{host, files::ProgramFolder(folder.Path()), core::Chance(), core::NumberFormat{},
              std::move(owned)};
    ui::Desktop& desktop = game.GetDesktop();
    screens::Screens& screens = game.GetScreens();
    const std::string& banner = screens.frmMonthBanner.Label1.Text();
};

// Each call to the system fails once while the player saves over an older game.
TEST(ArchiveFaults, AreToldAndLeaveAWholeGame)
{
    GameOver<test::FaultySystem> on;
    std::string old = on.Save(0);
    ASSERT_EQ(on.banner, "Game Saved");
    int told = 0;
    bool happened = true;
    for (int at = 1; happened; ++at) {
        SCOPED_TRACE("call " + std::to_string(at));
        on.system.Plan({.at = at, .reason = ENOSPC});
        const std::string now = on.Save(at);
        happened = on.system.Happened();
        const std::string found = on.folder.Read("Save/Save1");
        EXPECT_TRUE(found == now || found == old);
        if (on.banner == "Game Saved") {
            EXPECT_EQ(found, now);
        } else {
            ++told;
            EXPECT_THAT(on.banner,
                        AllOf(StartsWith("Mr.President, "), HasSubstr("(No space left on device)")));
        }
        EXPECT_FALSE(on.screens.frmSave.Visible());
        EXPECT_EQ(on.desktop.Click(on.screens.frmMain.Label5[3]), std::nullopt) << "the game goes on";
        old = found;
    }
    EXPECT_GT(told, 9);
}

// Hands what is written to a store that answers when the test says so.
struct SlowSystem : files::SystemCalls {
    void WhenKept(const std::function<void(int reason)>& then) override { asked = then; }
    std::function<void(int reason)> asked;
};

TEST(ArchiveFaults, ASaveIsNotSpokenForBeforeItIsKept)
{
    GameOver<SlowSystem> on;
    on.Save(1);
    EXPECT_THAT(on.banner, HasSubstr("One moment"));
    on.system.asked(0);
    EXPECT_EQ(on.banner, "Game Saved");
    on.Save(2);
    on.system.asked(ENOSPC);
    EXPECT_THAT(on.banner, AllOf(HasSubstr("could not be saved"), HasSubstr("Save/Save1: cannot be kept"),
                                 HasSubstr("(No space left on device)")));
}

}  // namespace
