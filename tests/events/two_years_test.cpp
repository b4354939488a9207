// Two years in power by clicks alone, with told dice: every action, every request and every kind of event.
#include "core/cards.h"
#include "events/play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace {

using test::Die;
using test::TestGame;

// Answers whatever the month has brought and says what it was. Proposals and requests of even numbers are
// refused.
std::string LiveThrough(TestGame& game)
{
    std::string seen;
    if (game.Shown("frmRandom2")) {
        seen = "proposal " + std::to_string(game.State().DealCode) + " ";
        game.Click(game.State().DealCode % 2 == 0 ? "frmRandom2.Command2" : "frmRandom2.Command1");
    }
    if (game.Shown("frmNewspaper")) {
        seen += game.Control("frmNewspaper.Image1").Now().picture;
        game.Click("frmNewspaper.Command1");
        test::PickChief(game);
    }
    if (game.Shown("frmShow2")) {
        seen = "request " + std::to_string(game.State().RequestDraw);
        game.Click(game.State().RequestDraw % 2 == 0 ? "frmShow2.Command3" : "frmShow2.Command1");
    }
    return seen;
}

TEST(TwoYears, BringEveryActionRequestAndEvent)
{
    // A month each: the action, what the dice say (an event of 1 .. 9, then its own) and what happens.
    struct Month {
        int action;
        std::vector<double> draws;
        const char* happens;
    };
    const auto event = [](int value, int own, int ofOwn) {
        return std::vector<double>{Die(value, 9), Die(own, ofOwn)};
    };
    const auto request = [](int number) { return std::vector<double>{Die(9, 9), Die(number, 13)}; };
    const Month months[] = {
        {1, event(1, 1, 3), "images/news1.bmp"},
        {2, event(2, 1, 5), "proposal 1 images/newswar.bmp"},
        {3, request(1), "request 1"},
        {4, event(5, 1, 6), "images/newsa1.bmp"},
        {5, event(5, 5, 6), "images/newsp2.bmp"},
        {6, event(5, 3, 6), "images/newsa3.bmp"},
        {7, request(2), "request 2"},
        {8, event(1, 2, 3), "images/news2.bmp"},
        {9, event(2, 2, 5), "proposal 2 "},
        {10, event(3, 1, 3), "proposal 6 images/newsg1.bmp"},
        {11, request(3), "request 3"},
        {12, event(4, 2, 3), "proposal 7 images/newsg2.bmp"},
        {13, event(4, 3, 3), "images/newsg3.bmp"},
        {14, request(4), "request 4"},
        {15, {Die(6, 9)}, "images/news3.bmp"},
        {16, event(1, 3, 3), "images/news3.bmp"},
        {17, request(5), "request 5"},
        {18, event(2, 3, 5), "proposal 3 images/newswar.bmp"},
        {21, event(2, 4, 5), "proposal 4 "},
        {19, request(6), "request 6"},
        {20, event(2, 5, 5), "proposal 5 "},
        {22, request(7), "request 7"},
        {24, {Die(9, 9), Die(9, 13)}, ""},
        {25, request(4), "request 4"},  // all were made, so they begin anew
    };
    TestGame game;
    game.StartGame();
    for (const Month& month : months) {
        SCOPED_TRACE("action " + std::to_string(month.action));
        test::CalmDown(game);
        test::TakeAction(game, month.action);
        game.Expect({{"ActionDone[" + std::to_string(month.action) + "]", 1}});
        const auto card = core::ReadCard(game.game.Folder(), "Actions/" + std::to_string(month.action));
        ASSERT_TRUE(card);
        const std::map<int, std::string> endings{{13, " IS THE NEW POLICE CHIEF!"},
                                                 {14, " IS THE NEW ARMY CHIEF!"},
                                                 {24, "an aid of 50.000.000 dollars!"}};
        const auto ending = endings.find(month.action);
        EXPECT_THAT(game.Banner(),
                    testing::EndsWith(ending == endings.end() ? card->result : ending->second));

        test::CalmDown(game);
        game.Set({{"Strength[Guerrillas]", 12}});
        for (const double r : month.draws) {
            game.Tell({r});
        }
        test::EndMonth(game, {});
        EXPECT_EQ(LiveThrough(game), month.happens);
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "");
    }
    game.Expect(
        {{"MonthsInPower", 25}, {"USBases", 1}, {"AirBase", 1}, {"IslandsSold", 1}, {"ActionDone[25]", 1}});
}

}  // namespace
