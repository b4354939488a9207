// What stands in the margin of the State's forms: true to the rules, and no more than the player could read.
#include "office/margin_rules.h"

#include "core/actions.h"
#include "core/budget.h"
#include "core/names.h"
#include "office/fits.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace {

const core::NumberFormat kFormat;

TEST(Margin, TellsWhatADeedReallyDoesToTheMoney)
{
    for (std::int64_t action = core::kCutEducation; action <= core::kBuyHelicopter; ++action) {
        if (action == core::kSackPoliceChief || action == core::kSackArmyChief) {
            continue;
        }
        test::TestGame game;
        game.StartGame();
        game.Set({{"ActionChoice", action}, {"AmericanHostility", 0}});
        const office::Money told = office::MoneyOfAction(game.State(), action);
        const std::int64_t balance = core::BalanceNow(game.State());
        const std::int64_t treasury = game.State().Money;
        game.Call("MakeAction");
        EXPECT_EQ(core::BalanceNow(game.State()) - balance, told.monthly) << action;
        EXPECT_EQ(game.State().Money - treasury, told.atOnce + told.hoped) << action;
    }
}

TEST(Margin, SaysItInOneSentence)
{
    const struct {
        office::Money money;
        const char* told;
    } cases[] = {
        {{.monthly = 1'233'430}, "It brings 1,233,430 dollars a month."},
        {{.monthly = -500, .lasts = false}, "It costs 500 dollars in the coming month."},
        {{.atOnce = -10'000'000}, "It costs 10,000,000 dollars at once."},
        {{.hoped = 50'000'000}, "It brings 50,000,000 dollars, or nothing."},
        {{}, "The treasury will not notice."},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(office::Told(each.money, kFormat), each.told);
    }
}

struct OnScreens : testing::Test {
    OnScreens() { game.StartGame(); }
    std::string Look(std::string_view control)
    {
        game.Desktop().Refresh();
        return game.Text(control);
    }
    void ExpectMarked(std::optional<screens::MenuItem> item)
    {
        game.Desktop().Refresh();
        const ui::Shape& bar = game.Screens().frmMain.shpOpenBar;
        EXPECT_EQ(bar.Now().visible, item.has_value());
        EXPECT_TRUE(!item || bar.Place() == screens::OpenBar(*item));
    }
    test::TestGame game;
};

TEST_F(OnScreens, ACardTellsWhatThePoliceWouldTell)
{
    game.Set({{"Strength[Workers]", 31},
              {"Opposition[Workers]", -4},
              {"AmericanHostility", 120},
              {"Strength[Army]", -32'768}});
    game.Click("frmMain.Label5(0)");
    game.Click("frmActions.Command1(1)");
    EXPECT_EQ(Look("frmShow.lblAction"), "Decrease Education expenses");
    EXPECT_EQ(Look("frmShow.lblStrengthNow(0)"), "31");
    EXPECT_EQ(Look("frmShow.lblOppositionNow(0)"), "0%");
    EXPECT_EQ(Look("frmShow.lblOppositionNow(9)"), "100%");
    test::ExpectAllFit(game.Screens().frmShow, "a card");
    ExpectMarked(screens::kMenuActions);

    game.Set({{"PoliceNoInfo", 1}});
    game.Desktop().Touch();
    EXPECT_EQ(Look("frmShow.lblStrengthNow(0)"), "?");
    EXPECT_EQ(Look("frmShow.lblOppositionNow(5)"), "?");
    EXPECT_EQ(Look("frmShow.lblStrengthNow(5)"), "-32768") << "the map has it as well";
}

TEST_F(OnScreens, AnOfferSaysWhoSpeaksAndNoKeyLedToIt)
{
    ExpectMarked(std::nullopt);
    game.Set({{"Revolutionaries[1]", 1}});
    game.Call("Choose");
    for (int button = 1; button <= 6; ++button) {
        game.Click("frmChoose.Command1(" + std::to_string(button) + ")");
        EXPECT_EQ(Look("frmMes2.lblSpeaker"),
                  "The " + std::string(core::FactionName(button + 1)) + " make an offer");
        test::ExpectAllFit(game.Screens().frmMes2, "an offer");
        game.Click("frmMes2.Command1");
    }
    ExpectMarked(std::nullopt);
}

TEST_F(OnScreens, TheForecastExplainsWhatItSays)
{
    const struct {
        std::int64_t workers, peasants;
        bool explained;
    } cases[] = {{70, 60, true}, {70, 40, false}, {40, 60, false}};
    for (const auto& each : cases) {
        game.Set({{"Strength[Workers]", 40},
                  {"Opposition[Workers]", each.workers},
                  {"Opposition[Peasants]", each.peasants}});
        game.Click("frmMain.Label5(3)");
        game.Click("frmArmy.Command2");
        const bool said = Look("frmAIN.Label4").find("might join") != std::string::npos;
        EXPECT_EQ(said, each.explained);
        EXPECT_EQ(game.Visible("frmAIN.lblJoin"), said);
        ExpectMarked(screens::kMenuArmy);
    }
}

}  // namespace
