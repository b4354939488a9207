// Every text that the screens of this topic can show fits its place.
#include "core/cards.h"
#include "core/variants.h"
#include "events/play.h"
#include "platform/painter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <vector>

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

TEST(CardsOnScreen, FitInOtherWordsToo)
{
    TestGame game;
    platform::Painter painter(game.game.Folder());
    screens::Screens& screens = game.Screens();
    std::size_t tried = 0;
    for (const auto& entry : std::filesystem::directory_iterator(test::Assets() / "Data/variants")) {
        const std::string name = entry.path().filename().string();
        const bool request = name.front() == 'M';
        const auto sets = core::ReadVariants(game.game.Folder(), name, request ? 2 : 1);
        ASSERT_TRUE(sets) << sets.Error().Message();
        for (const core::TextSet& set : *sets) {
            ui::Label& first = request               ? screens.frmShow2.Label10
                               : name.front() == 'R' ? screens.frmMes2.Label1
                                                     : screens.frmMonthBanner.Label1;
            first.SetText(set.front());
            screens.frmMonthBanner.Label1.SetText(set.back());
            EXPECT_TRUE(painter.Fits(first)) << set.front();
            EXPECT_TRUE(painter.Fits(screens.frmMonthBanner.Label1)) << set.back();
            ++tried;
        }
    }
    EXPECT_GE(tried, 2U * 37U);
}

// A game that varies tells the same story in other words: each month's text is one of the card's, and a file that is
// gone leaves the card's own and says so at the desk's edge.
TEST(CardsOnScreen, ChangeTheirWordsWhenAsked)
{
    TestGame game;
    game.game.Vary(true);
    game.StartGame();
    const std::string own = core::ReadCard(game.game.Folder(), "Actions/12")->result;
    const auto others = core::ReadVariants(game.game.Folder(), "12", 1);
    const auto read = [&game](int month) {
        game.Set({{"MonthsInPower", month}, {"ActionChoice", 12}});
        game.Call("MakeAction");
        return game.Banner();
    };
    std::vector<std::string> months;
    for (int month = 0; month <= static_cast<int>(others->size()); ++month) {
        months.push_back(read(month));
        EXPECT_EQ(read(month), months.back());
    }
    std::vector<std::string> all{own};
    for (const core::TextSet& set : *others) {
        all.push_back(set.front());
    }
    std::sort(all.begin(), all.end());
    std::sort(months.begin(), months.end());
    EXPECT_EQ(months, all);

    game.Desktop().Refresh();  // the edge of the desk comes when somebody looks
    game.folder.Write("Data/variants/12", "12");
    for (int month = 0; month <= static_cast<int>(others->size()); ++month) {
        EXPECT_EQ(read(month), own);
    }
    EXPECT_EQ(game.Text("frmStrip.lblLine"),
              "Data/variants/12, line 1: expected a text in quotes, found \"12\"");
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
