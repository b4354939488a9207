// The chronicle: what a month leaves in it, what is drawn and told, and where it is kept.
#include "core/actions.h"
#include "office/chronicle_rules.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using core::Kind;
using core::Who;
using office::Series;
using testing::ElementsAre;
using testing::HasSubstr;

const core::NumberFormat kFormat;

persist::Chronicle Reign(std::int64_t months)
{
    persist::Chronicle chronicle;
    for (std::int64_t i = 0; i < months; ++i) {
        persist::ChronicleRow row{.month = i + 2,
                                  .treasury = 50'000'000 - i * 1'000'000,
                                  .swiss = i * 700'000,
                                  .popularity = 60,
                                  .favour = 50,
                                  .reported = i % 3 == 2 ? 0 : 1};
        row.opposition.fill(std::min<std::int64_t>(i * 2, 120));
        row.strength.fill(i % 20);
        chronicle.push_back(row);
    }
    return chronicle;
}

TEST(Chronicle, ComesBackFromItsTextAndBrokenOnesAreTold)
{
    persist::Chronicle chronicle = Reign(240);
    chronicle[3].notes = {{Kind::Revolution, Who::Workers, 31, 5}, {Kind::End, Who::Americans, -1, 5}};
    const std::string text = persist::PrintChronicle(chronicle);
    const auto items = files::ParseItems(text, "c");
    ASSERT_TRUE(items);
    const auto read = persist::ParseChronicle(*items, "c");
    ASSERT_TRUE(read) << read.Error().Message();
    EXPECT_EQ(*read, chronicle);

    const struct {
        std::string text, expected;
    } broken[] = {
        {"\"battle\",\"\",1\r\n", "c, line 1: expected a kind, a name and a number behind a month"},
        {"1,2,3\r\n", "c, line 1: expected more numbers, found the end"},
        {"1,x\r\n", "c, line 1: expected a whole number for a month's row, found \"x\""},
        {text + "\"battle\",\"Nobody\",1\r\n", "a word of the journal for a note, found \"Nobody\""},
        {text + "\"battle\",\"Workers\"\r\n", "a number behind a month"},
    };
    for (const auto& each : broken) {
        const auto wrong = persist::ParseChronicle(*files::ParseItems(each.text, "c"), "c");
        ASSERT_FALSE(wrong);
        EXPECT_THAT(wrong.Error().Message(), HasSubstr(each.expected));
    }
}

TEST(Chronicle, TellsTheNewestFirstAndEachMonthSomething)
{
    persist::Chronicle chronicle = Reign(3);
    chronicle[1].notes = {core::Note{Kind::Month, Who::Nobody, 5, 3},
                          core::Note{Kind::Action, Who::Nobody, core::kSellIsland, 3},
                          core::Note{Kind::Revolution, Who::Peasants, 40, 3},
                          core::Note{Kind::Request, Who::Workers, 2, 3},
                          core::Note{Kind::Answer, Who::Nobody, 0, 3}};
    const auto log = office::LogOf(chronicle, kFormat);
    ASSERT_EQ(log.size(), 5U);
    EXPECT_EQ(log[0].month, 4);
    EXPECT_EQ(log[1].text, "The Workers were refused. They took it standing.");
    EXPECT_EQ(log[2].text, "The Peasants rose. The street is being swept.");
    EXPECT_EQ(log[2].mark, ui::Mark::Flame);
    EXPECT_EQ(log[3].text, "An island was sold. The inhabitants were included.");
    EXPECT_EQ(log[4].month, 2);
    EXPECT_THAT(office::MoneyOf(chronicle).events, ElementsAre(ui::GraphEvent{1, ui::Mark::Flame}));
}

TEST(Chronicle, DrawsOnlyWhatWasReportedAndWhatTheScaleHolds)
{
    const persist::Chronicle chronicle = Reign(9);
    const ui::Chart workers = office::ChartOf(Series::Workers, chronicle);
    EXPECT_THAT(workers.curves[0].values,
                ElementsAre(0, 2, std::nullopt, 6, 8, std::nullopt, 12, 14, std::nullopt));
    EXPECT_EQ(office::LastOf(Series::Workers, chronicle), 14) << "the last that is known";
    EXPECT_EQ(office::LastOf(Series::Guerrillas, chronicle), 8) << "the army's map tells it";
    EXPECT_EQ(office::LastOf(Series::Workers, Reign(100)), 100) << "as the report bounds it";
    EXPECT_EQ(office::SaidOf(Series::Workers, chronicle), "Workers, opposition up from 0 to 14%");
    EXPECT_EQ(office::SaidOf(Series::Guerrillas, chronicle), "Guerrillas, strength up from 0 to 8");
    EXPECT_EQ(office::SaidOf(Series::Workers, {}), "");
    const ui::Chart money = office::MoneyOf(Reign(60));
    EXPECT_EQ(money.low, -10);
    EXPECT_EQ(money.high, 50);
    EXPECT_TRUE(office::IsOverLimit(Series::Army, 66));
    EXPECT_FALSE(office::IsOverLimit(Series::Army, 65));
    EXPECT_TRUE(office::IsOverLimit(Series::Guerrillas, 12));
    EXPECT_FALSE(office::IsOverLimit(Series::Popularity, 99));
}

// Months played, shown, saved beside the game, and loaded; a file of another month begins anew.
TEST(Chronicle, LiesBesideTheSavedGame)
{
    test::TestGame game;
    game.game.Autosave(true);
    game.StartGame();
    for (int i = 0; i < 3; ++i) {
        game.Set({{"Strength[Guerrillas]", 1}, {"Money", 90'000'000}});
        game.Click("frmMain.Label5(4)");
        game.Tell({0.999, 0.999});  // no event and no request
        game.Wait(3000);
    }
    game.Set({{"SaveSlot", 2}});
    game.Call("save");
    const persist::Chronicle saved = game.game.GetChronicle();
    ASSERT_EQ(saved.size(), 3U);
    EXPECT_EQ(saved.back().month, 4);

    game.Click("frmMain.Label5(5)");
    game.Click("frmOptions.lblChronicle");
    EXPECT_EQ(game.Text("frmChronicle.lblMonth(0)"), "4");
    game.Press(ui::Key::Escape);
    EXPECT_FALSE(game.Shown("frmChronicle"));

    game.Call("Initialize");
    EXPECT_TRUE(game.game.GetChronicle().empty());
    game.Call("Load");
    EXPECT_EQ(game.game.GetChronicle(), saved);
    game.folder.Write("Save/Save2.chronicle", persist::PrintChronicle(Reign(9)));
    game.Call("Load");
    EXPECT_TRUE(game.game.GetChronicle().empty()) << "it tells of another month";
}

}  // namespace
