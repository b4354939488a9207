// The settings: their text survives other hands, their file is made where it is missing, a change counts at once.
#include "office/settings_file.h"
#include "support/temporary_folder.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

namespace {

using office::ParseSettings;
using office::PrintSettings;
using office::Settings;
using ui::Pauses;

TEST(Settings, KeepForeignLinesAndTellBadOnes)
{
    const auto text = ParseSettings("# mine\nvolume = 11\r\npauses=by-click\nmute = on \nmoustache = long\n"
                                    "full-screen = perhaps\nwindow-left = -40\nnarration",
                                    "settings");
    EXPECT_EQ(text.settings.volume, office::kLoudest);
    EXPECT_EQ(text.settings.pauses, Pauses::ByClick);
    EXPECT_TRUE(text.settings.mute && text.settings.fullScreen);
    EXPECT_EQ(text.settings.window.left, -40);
    ASSERT_EQ(text.wrong.size(), 2U);
    EXPECT_EQ(text.wrong[0].Message(), "settings, line 2: expected volume = 0 to 10, found '11'");
    EXPECT_EQ(text.wrong[1].Message(), "settings, line 6: expected full-screen = off or on, found 'perhaps'");

    const std::string printed =
        PrintSettings({.volume = 3}, "# mine\nmoustache = long\nvolume = 11\nvolume = 2");
    EXPECT_EQ(printed.rfind("# mine\nmoustache = long\nvolume = 3\nmute = off\n", 0), 0U) << printed;
}

TEST(Settings, AreWrittenWhereNothingWasAndReadBack)
{
    const test::TemporaryFolder folder;
    const office::SettingsFile file(folder.Path("not/yet/quenvale"));
    EXPECT_TRUE(file.Read().wrong.empty());
    const Settings set{.volume = 4,
                       .fullScreen = false,
                       .pauses = Pauses::Short,
                       .narration = true,
                       .window = {10, -20, 1000, 700}};
    ASSERT_FALSE(file.Write(set));
    const Settings read = file.Read().settings;
    EXPECT_EQ(PrintSettings(read, ""), PrintSettings(set, ""));

    EXPECT_TRUE(office::SettingsFile({}).Write(set));  // no home: told, not written into the working folder
}

TEST(Settings, CountAtOnceAndAreKept)
{
    test::TestGame game;
    int kept = 0;
    game.game.GetSettings().onKept = [&kept](const Settings&) { ++kept; };
    game.StartGame();
    game.Click("frmMain.Label5(5)");
    game.Click("frmOptions.lblSettings");
    EXPECT_FALSE(game.Shown("frmOptions"));
    game.Click("frmSettings.cmdValue(2)");
    EXPECT_EQ(game.Desktop().pauses, Pauses::Short);
    const int restored = game.host.restored;
    game.Click("frmSettings.cmdValue(1)");
    EXPECT_EQ(game.host.restored, restored + 1);
    game.Click("frmSettings.cmdValue(3)");
    EXPECT_TRUE(game.game.GetNarrator().On());
    game.Press(ui::Key::F2);
    EXPECT_EQ(game.Text("frmSettings.cmdValue(3)"), "Off");
    EXPECT_EQ(kept, 4);
    game.Press(ui::Key::Escape);
    EXPECT_FALSE(game.Shown("frmSettings"));
}

TEST(Settings, AWindowStaysAWindowPastTheTitle)
{
    test::TestGame game;
    game.game.GetSettings().Take({.fullScreen = false});
    game.StartGame();
    EXPECT_EQ(game.host.switched, 0);
}

}  // namespace
