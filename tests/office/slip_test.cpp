// The secretary's slip: what it tells of a month, and that it lies there only on a free desk.
#include "office/slip_rules.h"

#include "office/fits.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using core::Kind;
using core::Who;
using office::Standing;
using testing::ElementsAre;

TEST(SlipRules, LeaveOutWhatNobodyReported)
{
    Standing before{.reported = true, .figures = {40, 50}};
    Standing after{.reported = true, .figures = {47, 44}};
    after.figures[office::kGuerrillaRow] = 3;
    EXPECT_EQ(office::Change(before, after, 0), 7);
    EXPECT_EQ(office::Change(before, after, 1), -6);
    for (Standing* unreported : {&before, &after}) {
        unreported->reported = false;
        EXPECT_EQ(office::Change(before, after, 0), std::nullopt);
        EXPECT_EQ(office::Change(before, after, office::kGuerrillaRow), 3) << "the army's map tells it";
        unreported->reported = true;
    }
}

TEST(SlipRules, TellTheLatestTwoThingsInALineEach)
{
    const Standing standing{.month = 3, .reported = true};
    const Standing more{.month = 4, .reported = true, .inTheMountains = 212};
    const std::vector<core::Note> claim{
        {Kind::Month, {}, 5, 3}, {Kind::Claim, Who::Workers, 9, 3}, {Kind::Answer, Who::Workers, 0, 3}};
    const auto told = [&](const std::vector<core::Note>& notes) {
        return office::Happenings(notes, standing, more, {});
    };
    EXPECT_THAT(told({}), ElementsAre("212 people have moved to the mountains, for the air.", testing::_));
    EXPECT_THAT(told(claim), ElementsAre(testing::_, "The Workers were not paid. They have kept the bill."));
    EXPECT_THAT(told({{Kind::Disaster, {}, 2, 3}, {Kind::Damage, {}, 1'500'000, 3}}),
                ElementsAre(testing::StartsWith("The hurricane"),
                            "The guerrillas cost $1,500,000. They gave no receipt."));

    const struct {
        core::Note note;
        std::int64_t answer;
        const char* word;
    } sentences[] = {
        {{Kind::Request, Who::Workers, 2, 3}, 1, "got what they asked for"},
        {{Kind::Request, Who::Workers, 2, 3}, 0, "were refused. They took it standing"},
        {{Kind::Demand, Who::Americans, 4, 3}, 1, "are content"},
        {{Kind::Demand, Who::Americans, 4, 3}, 0, "left his hat"},
        {{Kind::Claim, Who::Workers, 9, 3}, 1, "were paid"},
        {{Kind::Claim, Who::Workers, 9, 3}, 0, "were not paid"},
        {{Kind::Aid, Who::Americans, 0, 3}, 0, "did not pay"},
        {{Kind::Aid, Who::Americans, 5, 3}, 0, "Americans paid"},
        {{Kind::Disaster, {}, 1, 3}, 0, "drought"},
        {{Kind::Disaster, {}, 3, 3}, 0, "earth"},
        {{Kind::War, Who::Feraz, 1, 3}, 0, "Feraz is beaten"},
        {{Kind::War, Who::Feraz, 0, 3}, 0, "Feraz has won"},
        {{Kind::Battle, {}, 1, 3}, 0, "battle is won"},
        {{Kind::Coup, Who::Army, 0, 3}, 0, "chief of the Army"},
    };
    for (const auto& each : sentences) {
        EXPECT_THAT(told({each.note, {Kind::Answer, each.note.who, each.answer, 3}}).back(),
                    testing::HasSubstr(each.word));
    }

    // Any note, about anybody, however much: at most two lines that fit the slip.
    for (int kind = 0; kind <= static_cast<int>(Kind::End); ++kind) {
        for (int who = 0; who <= static_cast<int>(Who::Americans); ++who) {
            for (const std::int64_t amount : {0, 1, 2, 3, 2'147'483'647}) {
                const core::Note note{static_cast<Kind>(kind), static_cast<Who>(who), amount, 3};
                const core::Note answer{Kind::Answer, note.who, amount % 2, 3};
                const auto lines = told({note, answer, note});
                EXPECT_LE(lines.size(), office::kMostHappenings);
                for (const std::string& line : lines) {
                    EXPECT_LE(line.size(), 62U) << line;
                }
            }
        }
    }
}

TEST(Slip, LiesOnAFreeDeskUntilSomethingIsDone)
{
    test::TestGame game;
    game.StartGame();
    const auto seen = [&game] {
        game.Desktop().Touch();
        game.Desktop().Refresh();
        return game.Shown("frmSlip");
    };
    const auto nextMonth = [&game] {
        game.Set({{"Money", 1'000'000'000}, {"Strength[Guerrillas]", 2}, {"Strength[Prisoners]", 1}});
        for (const char* group :
             {"Workers", "Peasants", "Army", "Police", "Landowners", "Businessmen", "Industrialists"}) {
            game.Set({{"Opposition[" + std::string(group) + "]", 10}});
        }
        game.Tell({0.99, 0.99, 0.99, 0.99, 0.99, 0.99});
        game.Click("frmMain.Label5(4)");
    };
    EXPECT_FALSE(seen()) << "nothing has happened yet";
    nextMonth();
    EXPECT_FALSE(seen()) << "the month is still going on";
    game.Wait(3000);
    ASSERT_TRUE(seen());
    EXPECT_EQ(game.Text("frmSlip.lblTitle"), "MONTH 2");
    EXPECT_EQ(game.Text("frmSlip.lblMoney(0)"), game.Text("frmStrip.lblMoney")) << "the strip says the same";
    EXPECT_EQ(game.Text("frmSlip.lblMoney(1)"), game.Text("frmStrip.lblBalance"));
    test::ExpectAllFit(game.Form("frmSlip"), "a quiet month");
    game.Click("frmMain.Label5(3)");
    EXPECT_FALSE(game.Shown("frmSlip"));
    EXPECT_FALSE(seen()) << "once is enough";
    nextMonth();
    game.Wait(3000);
    ASSERT_TRUE(seen());
    game.Desktop().PointerDown({400, 500});
    game.Desktop().PointerUp({400, 500});
    EXPECT_FALSE(game.Shown("frmSlip"));
}

}  // namespace
