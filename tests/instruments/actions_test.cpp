// The list of presidential actions: what it refuses, in which words and order, and what it dims.
#include "support/test_game.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::TestGame;
using testing::ElementsAre;

constexpr const char* kDone = "Mr.President, you have already done that! You can try again next month.";
constexpr const char* kBusy =
    "Mr.President, the Army is busy right now. We are in war in case you didn't notice! . . .";
constexpr const char* kSold = "Once we had three beautiful islands, but you sold them all!";
constexpr const char* kEarly = "Mr.President, it's too early to ask for another aid. Try again in 3 months.";
constexpr const char* kOwned = "But Mr.President, you already have one!";

TEST(Actions, AreRefusedWithTheirReasons)
{
    struct Case {
        const char* why;
        int action;
        test::FieldValues before;
        const char* told;  // null: allowed
        bool chosen;       // ActionChoice follows
    };
    const Case cases[] = {
        {"done", 1, {{"ActionDone[1]", 1}}, kDone, true},
        {"barred by its opposite", 12, {{"ActionDone[12]", 1}}, kDone, true},
        {"the army is busy", 18, {{"War", 2}}, kBusy, false},
        {"busy comes before done", 18, {{"War", 2}, {"ActionDone[18]", 1}}, kBusy, false},
        {"in the mountains", 18, {{"War", 1}, {"GuerrillaWar", 1}, {"ActionDone[18]", 1}}, kDone, true},
        {"another action in a war", 17, {{"War", 2}}, nullptr, true},
        {"two islands sold", 15, {{"IslandsSold", 2}}, nullptr, true},
        {"three islands sold", 15, {{"IslandsSold", 3}, {"ActionDone[15]", 1}}, kSold, false},
        {"aid too early", 24, {{"AidWait", 3}, {"ActionDone[24]", 1}}, kEarly, true},
        {"aid asked before", 24, {{"ActionDone[24]", 1}}, nullptr, true},
        {"one helicopter", 25, {{"ActionDone[25]", 1}}, kOwned, true},
        {"an empty treasury", 25, {{"Money", 0}}, nullptr, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        TestGame game;
        game.StartGame();
        game.Set({{"ActionChoice", 5}});
        game.Set(c.before);
        game.Click("frmMain.Label5(0)");
        const std::string button = "frmActions.Command1(" + std::to_string(c.action) + ")";
        EXPECT_EQ(game.Control(button).Now().fore == look::kDoneText, c.told != nullptr);
        EXPECT_EQ(game.Control(button).Now().mark == ui::Mark::Dash, c.told != nullptr);
        game.TakeSounds();
        game.Click(button);
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        EXPECT_EQ(game.Banner(), c.told != nullptr ? c.told : " ");
        EXPECT_EQ(game.Shown("frmShow"), c.told == nullptr);
        EXPECT_FALSE(game.Shown("frmActions"));
        game.Expect({{"ActionChoice", c.chosen ? c.action : 5}});
    }
}

// What is written on a button is what it does: half of them have no other witness than their words.
TEST(Actions, KeepTheWordOfTheirButtons)
{
    const struct {
        const char *caption, *result;
    } cases[] = {
        {"Execute all the Prisoners!", "Victims"},
        {"Release all the Prisoners!", "Population[Workers]"},
        {"Sell an island for 150.000.000$!", "IslandsSold"},
        {"Attack the Guerillas!", "GuerrillaWar"},
        {"Run a Personal Campaing!", "Money"},
        {"Increase  Army  funds", "ExpArmy"},
        {"Increase  Police  funds", "ExpPolice"},
        {"Increase  Health  expenses", "ExpHealth"},
        {"Increase  Education expenses", "ExpEducation"},
        {"Increase  Allowances", "ExpAllowances"},
        {"Increase Unemployment Benefits", "ExpUnemployment"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.caption);
        test::TestGame game;
        game.StartGame();
        game.Set({{"Population[Prisoners]", 500}, {"Strength[Guerrillas]", 9}});
        game.Click("frmMain.Label5(0)");
        for (const ui::Control* button : game.Form("frmActions").Controls()) {
            if (button->Text() == c.caption && game.Shown("frmActions")) {
                game.Click("frmActions." + button->Name());
            }
        }
        const core::GameState before = game.State();
        game.Click("frmShow.Command3");
        EXPECT_THAT(test::Changed(before, game.State()), testing::Contains(c.result));
        const core::Element element = *core::FindElement(c.result);
        const bool grew =
            std::get<std::int64_t>(element.Get(before)) < std::get<std::int64_t>(element.Get(game.State()));
        EXPECT_EQ(grew, std::string_view(c.result) != "Money");
    }
}

TEST(Actions, ComeBackNextMonth)
{
    TestGame game;
    game.StartGame();
    const auto look = [&game] { return game.Control("frmActions.Command1(12)").Now(); };
    game.Set({{"ActionDone[12]", 1}});
    game.Click("frmMain.Label5(0)");
    EXPECT_EQ(look().mark, ui::Mark::Dash);
    game.Set({{"ActionDone[12]", 0}});
    game.Click("frmMain.Label5(0)");
    EXPECT_EQ(look().mark, ui::Mark::Up);
    EXPECT_EQ(look().fore, look::kBandText);
}

TEST(Actions, OfferNeitherTheSpareNorTheBlankOne)
{
    TestGame game;
    game.StartGame();
    game.Click("frmMain.Label5(0)");
    for (const char* button : {"frmActions.Command1(0)", "frmActions.Command1(23)"}) {
        EXPECT_EQ(game.ClickRefused(button), std::string(button) + " is hidden");
    }
    EXPECT_EQ(game.Text("frmActions.Command1(0)"), "Increase Education expenses");
    EXPECT_EQ(game.Text("frmActions.Command1(23)"), " ");
}

}  // namespace
