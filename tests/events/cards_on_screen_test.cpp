// Every text that the screens of this topic can show fits its place.
#include "core/cards.h"
#include "events/play.h"
#include "platform/painter.h"

#include <gtest/gtest.h>

namespace {

using test::TestGame;

void ExpectAllFit(platform::Painter& painter, const ui::Form& form)
{
    for (const ui::Control* control : form.Controls()) {
        EXPECT_TRUE(!control->Now().visible || painter.Fits(*control))
            << form.Name() << "." << control->Name() << ": " << control->Text();
    }
}

TEST(CardsOnScreen, FitTheirSheets)
{
    TestGame game;
    platform::Painter painter(game.game.Folder());
    game.StartGame();
    const screens::Screens& screens = game.Screens();
    for (int action = 1; action <= 25; ++action) {
        SCOPED_TRACE("action " + std::to_string(action));
        game.Set({{"ActionChoice", action}});
        game.Call("ShowAction");
        ExpectAllFit(painter, screens.frmShow);
        game.Click("frmShow.Command3");
        test::PickChief(game);
        EXPECT_TRUE(painter.Fits(screens.frmMonthBanner.Label1)) << game.Banner();
    }
    for (int request = 1; request <= 7; ++request) {
        SCOPED_TRACE("request " + std::to_string(request));
        game.Set({{"RequestDraw", request}, {"Population[Prisoners]", 1}});
        game.Call("ShowAction2");
        ExpectAllFit(painter, screens.frmShow2);
        game.Click("frmShow2.Command1");
        EXPECT_TRUE(painter.Fits(screens.frmMonthBanner.Label1)) << game.Banner();
    }
}

TEST(CardsOnScreen, HaveRoomForTheLargestNumbers)
{
    TestGame game;
    platform::Painter painter(game.game.Folder());
    game.folder.Write("Actions/1", test::FlatCard(-2'147'483'647));
    game.StartGame();
    game.Set({{"ActionChoice", 1}});
    game.Call("ShowAction");
    ExpectAllFit(painter, game.Screens().frmShow);
}

TEST(Proposals, FitTheirBox)
{
    TestGame game;
    platform::Painter painter(game.game.Folder());
    game.StartGame();
    const std::vector<std::vector<double>> draws{
        {0.15, 0.0}, {0.15, 0.2}, {0.15, 0.4}, {0.15, 0.6}, {0.15, 0.8}, {0.25, 0.0}, {0.25, 0.4},
    };
    for (const std::vector<double>& each : draws) {
        game.Set({{"Strength[Guerrillas]", 32'767}});
        for (const double r : each) {
            game.Tell({r});
        }
        game.Call("RandomEvents");
        ASSERT_TRUE(game.Shown("frmRandom2"));
        ExpectAllFit(painter, game.Screens().frmRandom2);
        game.Set({{"USBases", 254}});
        game.Click("frmRandom2.Command1");
        EXPECT_TRUE(painter.Fits(game.Screens().frmMonthBanner.Label1)) << game.Banner();
    }
    ExpectAllFit(painter, game.Screens().frmActions);
    ExpectAllFit(painter, game.Screens().frmUSA);
    ExpectAllFit(painter, game.Screens().frmNewspaper);
}

}  // namespace
