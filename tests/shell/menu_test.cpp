#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;

class Menu : public testing::Test {
protected:
    Menu() { game.StartGame(); }
    // The highlighted items, as their numbers.
    std::string Highlighted()
    {
        std::string items;
        for (int i = 0; i < screens::kMenuItems; ++i) {
            const std::string& picture = game.Screens().frmMain.Label5[i].Now().picture;
            const std::string n = std::to_string(i);
            EXPECT_TRUE(picture == "images/" + n + "a.bmp" || picture == "images/" + n + "b.bmp") << picture;
            items += picture == "images/" + n + "a.bmp" ? n : "";
        }
        return items;
    }

    // The month's three seconds, with no event and no request behind them.
    void WaitQuietly()
    {
        game.Set({{"Strength[Guerrillas]", 1}});
        game.Tell({0.999, 0.999});
        game.Wait(3000);
    }

    test::TestGame game;
};

TEST_F(Menu, HighlightsTheItemUnderThePointer)
{
    EXPECT_EQ(Highlighted(), "");
    game.Hover("frmMain.Label5(0)");
    EXPECT_EQ(Highlighted(), "0");
    game.Hover("frmMain.Label5(5)");
    EXPECT_EQ(Highlighted(), "5");
    game.Desktop().PointerMove({400, 300});
    game.Desktop().PointerLeave();
    EXPECT_EQ(Highlighted(), "5") << "the last item stays lit";
    game.Desktop().PointerMove({200, 20});
    EXPECT_EQ(Highlighted(), "1");
}

TEST_F(Menu, ClicksAndClearsTheBannerAtEveryCommand)
{
    for (int i = 0; i < screens::kMenuItems; ++i) {
        game.Screens().frmMonthBanner.Label1.SetText("old news");
        game.TakeSounds();
        game.Click("frmMain.Label5(" + std::to_string(i) + ")");
        EXPECT_THAT(game.TakeSounds(), testing::Contains("sound/click.wav").Times(1)) << i;
        EXPECT_NE(game.Banner(), "old news") << i;
        game.Wait(20'000);
        game.Screens().frmMain.SetEnabled(true);
    }
}

TEST_F(Menu, PutsAwayWhateverTheLastCommandLeft)
{
    for (const std::string form : {"frmTaxes", "frmPolice", "frmOptions", "frmBank", "frmActions", "frmShow",
                                   "frmPolc", "frmArmyC", "frmSave", "frmLoad", "frmHistory", "frmWAR",
                                   "frmGameLoaded", "frmAIN", "frmTop102", "frmPrRev", "frmNewspaper"}) {
        SCOPED_TRACE(form);
        game.Form(form).Show();
        game.Click("frmMain.Label5(3)");
        EXPECT_THAT(game.Front(), ElementsAre("frmArmy", "frmMain", "frmMonthBanner"));
    }
    game.Click("frmMain.Label5(1)");
    EXPECT_FALSE(game.Shown("frmArmy"));
}

TEST_F(Menu, IsSilentWhileTheMonthGoesOn)
{
    game.Click("frmMain.Label5(4)");
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "frmMain is disabled");
    game.Press(ui::Key::Digit4);
    EXPECT_FALSE(game.Shown("frmArmy"));
}

TEST_F(Menu, IsReachedByKeys)
{
    game.Press(ui::Key::Digit4);
    EXPECT_TRUE(game.Shown("frmArmy"));
    game.Press(ui::Key::Digit5);
    EXPECT_EQ(game.Banner(), "You are in power for 2 months");
    WaitQuietly();
    game.Press(ui::Key::Tab);  // from the item that was picked to the next one
    game.Press(ui::Key::Left);
    EXPECT_EQ(Highlighted(), "4") << "the focus lights an item up as the pointer does";
    game.Press(ui::Key::Space);
    EXPECT_EQ(game.Banner(), "You are in power for 3 months");
    WaitQuietly();
    game.Press(ui::Key::Return);
    EXPECT_EQ(game.Banner(), "You are in power for 4 months") << "the focus is still there";
}

TEST_F(Menu, OpensTheManualWithF1)
{
    game.folder.Remove("Data/Manual.htm");
    game.Press(ui::Key::F1);
    EXPECT_TRUE(game.host.opened.empty());
    EXPECT_THAT(game.Banner(), testing::HasSubstr(game.folder.Path("Data/Manual.htm").string()));
    game.folder.Write("Data/Manual.htm", "<p>Rule.</p>");
    game.Press(ui::Key::F1);
    EXPECT_THAT(game.host.opened, ElementsAre("Data/Manual.htm"));
    EXPECT_THAT(game.Banner(), testing::HasSubstr(game.folder.Path("Data/Manual.htm").string()));
}

TEST_F(Menu, LeavesTheStoryItsLineWhenF1IsPressed)
{
    game.folder.Write("Data/Manual.htm", "<p>Rule.</p>");
    game.Call("Timer6_Timer");
    const std::string last = game.Banner();
    game.Screens().frmMain.SetEnabled(false);
    game.Press(ui::Key::F1);
    EXPECT_THAT(game.host.opened, ElementsAre("Data/Manual.htm"));
    EXPECT_EQ(game.Banner(), last);
}

TEST_F(Menu, RefusesTheMonthThatTheTreasuryCannotPay)
{
    // Nothing happens but the months themselves.
    for (int month = 2; month <= 4; ++month) {
        game.Set({{"Strength[Guerrillas]", 1}});
        game.Call("EndOfTurn");
        game.Call("EndOfTurn2");
        game.Screens().frmMain.Timer1.SetInterval(0);
        game.game.GetMonth().Close();
        game.Expect({{"MonthsInPower", month}});
    }
    for (int i = 0; i < 3; ++i) {
        const core::GameState before = game.State();
        game.Click("frmMain.Label5(4)");
        EXPECT_EQ(game.Banner(),
                  "Mr.President, we can't proceed to next month, because we can't cover our expenses! "
                  "Please pay more attention to our finacial status.");
        game.Expect({{"MonthsInPower", 4}, {"Money", std::int64_t{before.Money}}});
        EXPECT_TRUE(game.Screens().frmMain.Enabled());
        EXPECT_FALSE(game.Screens().frmMain.Timer1.Armed());
    }
    const std::int64_t deficit = game.State().ExpTotal - game.State().TaxIncomeTotal;
    game.Set({{"Money", deficit - 1}});
    game.Click("frmMain.Label5(4)");
    game.Expect({{"MonthsInPower", 4}});
    game.Set({{"Money", deficit}});
    game.Click("frmMain.Label5(4)");
    game.Expect({{"MonthsInPower", 5}, {"Money", 0}});
}

}  // namespace
