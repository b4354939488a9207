// Who owns the month: open from "Next month" to the answer that ends its story.
#include "month/month.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

using test::TestGame;

constexpr const char* kNext = "frmMain.Label5(4)";

// Nobody has a reason to rise, and the treasury lasts: what happens is what the dice say.
void CalmDown(TestGame& game)
{
    game.State().Strength.fill(20);
    game.State().Opposition.fill(0);
    game.Set({{"Strength[Guerrillas]", 12},
              {"Strength[Prisoners]", 0},
              {"Population[Prisoners]", 0},
              {"AmericanHostility", 0},
              {"Money", 1'000'000'000},
              {"PoliceChiefs[0][2]", 1},
              {"PoliceChiefs[0][3]", 1},
              {"ArmyChiefs[0][3]", 1}});
}

// A calm country, and what is told when its months are closed.
struct Play {
    Play()
    {
        game.StartGame();
        CalmDown(game);
        game.game.GetMonth().OnClosed([this](const month::Closed& closed) {
            ++closings;
            notes = closed.notes;
        });
    }

    void EndMonth(std::initializer_list<double> draws)
    {
        game.Click(kNext);
        game.Tell(draws);
        game.Wait(3000);
    }
    bool IsOpen() { return game.game.GetMonth().IsOpen(); }

    TestGame game;
    int closings = 0;
    std::vector<core::Note> notes;
};

struct Open : testing::Test, Play {};

TEST_F(Open, NextMonthWaitsForTheClaimWhileTheRestOfTheMenuAnswers)
{
    EndMonth({0.25, 0.0});  // guerrillas burn the plantations
    game.Click("frmNewspaper.Command1");
    const std::int64_t victims = game.State().Victims;

    game.Click(kNext);
    EXPECT_EQ(game.Banner(), "One thing at a time, Mr.President. The landowners are still in the room.");
    game.Wait(10'000);
    game.Expect({{"MonthsInPower", 2}, {"Victims", victims}});
    game.Click("frmMain.Label5(1)");
    EXPECT_TRUE(game.Shown("frmTaxes"));
    EXPECT_TRUE(IsOpen());

    game.Click("frmRandom2.Command2");
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(closings, 1);
    game.Click(kNext);
    game.Expect({{"MonthsInPower", 3}});
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), game.ClickRefused(kNext))
        << "the pause is nobody's turn";
    EXPECT_NE(game.ClickRefused(kNext), "");
}

// Every story is closed once, whatever it shows on the way, and hands over what happened in it.
TEST(AnyMonth, IsClosedOnceByWhicheverAnswerEndsTheStory)
{
    using core::Kind;
    const struct {
        const char* why;
        test::FieldValues fields;
        std::vector<double> draws;
        std::vector<const char*> clicks;  // a number waits that many milliseconds
        std::vector<Kind> kinds;
    } cases[] = {
        {"nothing at all", {}, {0.99, 0.99}, {}, {Kind::Month}},
        {"a disaster", {}, {0.0, 0.0}, {"frmNewspaper.Command1"}, {Kind::Month, Kind::Disaster}},
        {"a chief is gone",
         {},
         {0.5, 0.0},
         {"frmNewspaper.Command1", "frmArmyC.Label1(1)"},
         {Kind::Month, Kind::ChiefGone, Kind::NewChief}},
        {"a demand",
         {},
         {0.12, 0.0},
         {"frmRandom2.Command1", "frmNewspaper.Command1"},
         {Kind::Month, Kind::Demand, Kind::Answer, Kind::WarBegins}},
        {"a claim, answered before the newspaper",
         {},
         {0.25, 0.5},
         {"frmRandom2.Command1", "frmNewspaper.Command1"},
         {Kind::Month, Kind::Claim, Kind::Answer}},
        {"a request", {}, {0.99, 0.0}, {"frmShow2.Command3"}, {Kind::Month, Kind::Request, Kind::Answer}},
        {"a war", {{"War", 2}}, {0.5, 0.5}, {}, {Kind::Month, Kind::War}},
        {"an attempt that failed",
         {{"Opposition[Workers]", 160}, {"Strength[PersonalArmy]", 100}},
         {0.0, 0.0, 0.9, 0.0},
         {"frmMes.Command1", "5500", "frmAFailed.Command1", "frmMes1.Command1"},
         {Kind::Month, Kind::Attempt, Kind::Survived, Kind::Executed}},
        {"a coup that failed",
         {{"MonthsInPower", 9},
          {"Strength[Army]", 40},
          {"ArmyChiefs[0][3]", 10},
          {"Strength[PersonalArmy]", 100}},
         {0.0},
         {"frmMes3.Command1", "frmRev.Command2", "frmChoose.Command1(1)", "frmMes2.Command2", "7500", "7500",
          "frmArmyC.Label1(1)"},
         {Kind::Month, Kind::Coup, Kind::Revolution, Kind::Ally, Kind::Battle, Kind::NewChief}},
        {"a flight",
         {{"Strength[Prisoners]", 12}},
         {0.0},
         {"frmPrRev.Command1", "5000", "6000"},
         {Kind::Month, Kind::Revolt, Kind::Flight, Kind::End}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        Play each;
        each.game.Set(c.fields);
        each.game.Click(kNext);
        for (const double draw : c.draws) {
            each.game.game.GetChance().Tell(draw);
        }
        each.game.Wait(3000);
        for (const std::string_view click : c.clicks) {
            if (click.starts_with("frm")) {
                each.game.Click(click);
            } else {
                each.game.Wait(std::stoi(std::string(click)));
            }
        }
        EXPECT_FALSE(each.IsOpen());
        EXPECT_EQ(each.closings, 1);
        std::vector<Kind> kinds;
        for (const core::Note& note : each.notes) {
            kinds.push_back(note.kind);
        }
        EXPECT_EQ(kinds, c.kinds);
        EXPECT_THAT(each.game.game.GetJournal().Notes(), testing::IsEmpty());
    }
}

// What leads to the end of an open month. The list of ten stands at the end of every game.
bool StoryGoesOn(TestGame& game)
{
    constexpr std::array kAnswered{
        "frmUSA", "frmWAR",     "frmPrRev", "frmGRev",      "frmMes3",    "frmRev",   "frmChoose", "frmMes2",
        "frmMes", "frmAFailed", "frmMes1",  "frmNewspaper", "frmRandom2", "frmShow2", "frmPolc",   "frmArmyC",
    };
    const auto& timers = game.Screens().frmMain.Timers();
    return std::any_of(timers.begin(), timers.end(), [](const ui::Timer* timer) { return timer->Armed(); }) ||
           std::any_of(kAnswered.begin(), kAnswered.end(),
                       [&game](const char* screen) { return game.Shown(screen); });
}

// A player who presses anything anywhere, for some hundred months.
TEST(AnyMonth, CanBeClosedAndGivesTheMenuBack)
{
    std::mt19937 random(4711);
    const auto below = [&random](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    TestGame game;
    game.game.GetChance().Seed(7);
    std::int64_t months = 0;
    game.game.GetMonth().OnClosed([&months](const month::Closed&) { ++months; });
    for (int step = 0; step < 6000; ++step) {
        std::vector<ui::Control*> choice;
        for (const ui::Form* form : game.Desktop().Shown()) {
            choice.insert(choice.end(), form->Controls().begin(), form->Controls().end());
        }
        const std::size_t what = below(8);
        if (what == 0) {
            game.Wait(8000);
        } else if (what < 3) {
            game.ClickRefused(kNext);
        } else if (!choice.empty()) {
            game.Desktop().Click(*choice[below(choice.size())]);
        }
        if (game.Shown("frmlogo")) {
            game.StartGame();
        }
        if (step % 40 == 0) {
            game.State().Money = 500'000'000;
        }
        const bool open = game.game.GetMonth().IsOpen();
        ASSERT_TRUE(!open || StoryGoesOn(game)) << "nothing closes the month any more, at step " << step;
        ASSERT_TRUE(open || game.Screens().frmMain.Enabled() || game.Shown("frmTop102"))
            << "nobody's turn, at step " << step;
    }
    EXPECT_GT(months, 100);
}

}  // namespace
