// The last page: true of how it was, whole at its longest, and no obstacle in front of the hall.
#include "office/farewell.h"

#include "office/fits.h"
#include "platform/text_layout.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace {

using core::Kind;
using core::Who;
using office::End;
using office::Obituary;

TEST(Obituaries, SayHowItReallyWas)
{
    const struct {
        const char* why;
        int dead;
        std::vector<core::Note> notes;
        End end;
        Who killer;
        bool helicopter;
    } cases[] = {
        {"shot on the road",
         1,
         {{Kind::Flight, Who::Nobody, 0, 5}, {Kind::End, Who::Nobody, 0, 5}},
         End::Executed,
         Who::Nobody,
         false},
        {"shot down",
         1,
         {{Kind::Flight, Who::Nobody, 1, 5}, {Kind::End, Who::Nobody, 0, 5}},
         End::Executed,
         Who::Nobody,
         true},
        {"a lost battle",
         1,
         {{Kind::Battle, Who::Nobody, 0, 5}, {Kind::End, Who::Nobody, 0, 5}},
         End::Basement,
         Who::Nobody,
         false},
        {"an assassin",
         1,
         {{Kind::Attempt, Who::Army, 0, 5}, {Kind::End, Who::Army, 0, 5}},
         End::Assassinated,
         Who::Army,
         false},
        {"the CIA", 1, {{Kind::End, Who::Americans, 0, 5}}, End::Assassinated, Who::Americans, false},
        {"away",
         0,
         {{Kind::Flight, Who::Nobody, 1, 5}, {Kind::End, Who::Nobody, 1, 5}},
         End::Escaped,
         Who::Nobody,
         true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.why);
        core::GameState state;
        state.Dead = each.dead;
        const Obituary of = office::ObituaryOf(state, each.notes);
        EXPECT_EQ(of.end, each.end);
        EXPECT_EQ(of.killer, each.killer);
        EXPECT_EQ(of.byHelicopter, each.helicopter);
    }
}

// Every way to end, for every reign and every fortune: always a page that is true, and each page has its day.
TEST(FarewellPages, AreTrueOfWhomTheyAreAbout)
{
    std::set<std::string_view> printed;
    for (const End end : {End::Executed, End::Basement, End::Assassinated, End::Escaped}) {
        for (int who = 0; who <= static_cast<int>(Who::Americans); ++who) {
            for (std::int64_t months = 1; months < 50; ++months) {
                for (const std::int64_t fortune : {0, 2'000'000, 30'000'000, 90'000'000, 2'147'483'647}) {
                    for (const bool yes : {false, true}) {
                        const Obituary of{.end = end,
                                          .killer = static_cast<Who>(who),
                                          .rebels = static_cast<Who>(who),
                                          .byHelicopter = yes,
                                          .ownArmy = yes,
                                          .name = "Ada",
                                          .months = months,
                                          .fortune = fortune};
                        const office::FarewellPage& page = office::PageFor(of);
                        EXPECT_TRUE(page.end == end && page.isTrue(of)) << page.headline;
                        printed.insert(page.left.text);
                    }
                }
            }
        }
    }
    EXPECT_EQ(printed.size(), office::FarewellPages().size());
    EXPECT_EQ(office::Term(1), "1 month");
}

class Farewell : public testing::Test {
protected:
    void EndGame(const test::FieldValues& values)
    {
        game.StartGame(core::kNormal, "Don Maximiliano de la W");
        game.Set(values);
        game.Call("TopTen");
    }
    test::TestGame game;
};

TEST_F(Farewell, FitsItsPlacesAtItsLongest)
{
    platform::Letters letters;
    screens::FrmFarewell& form = game.game.GetScreens().frmFarewell;
    for (const office::FarewellPage& page : office::FarewellPages()) {
        const Obituary of{.end = page.end,
                          .killer = Who::Industrialists,
                          .name = "Maximiliano Vasquez",
                          .months = 118,
                          .fortune = -2'147'483'648};
        office::PrintPage(form, page, of, {});
        form.Show();
        test::ExpectAllFit(form, std::string(page.headline));
        const ui::Control& headline = form.lblHeadline;
        const double width =
            platform::LayOut(letters, headline.Text(), headline.Style(), platform::TextPlace(headline))
                .lines[0]
                .width;
        EXPECT_LE(headline.Place().left + width, form.lblDeck.Place().left - 4) << page.headline;
    }
}

TEST_F(Farewell, StandsInFrontOfTheHallAndInNobodysWay)
{
    EndGame({{"Dead", 1}, {"SwissBank", 0}});
    EXPECT_THAT(game.Front().front(), "frmFarewell");
    game.Click("frmTop102");
    EXPECT_TRUE(game.Shown("frmlogo")) << "a click on the hall works all the same";
    EXPECT_FALSE(game.Shown("frmFarewell"));

    EndGame({{"SwissBank", 2'000'000'000}});
    EXPECT_TRUE(game.Visible("frmTop102.Shape1"));
    EXPECT_EQ(game.Control("frmTop102.Shape1").Place().top, game.Control("frmTop102.Label1(0)").Place().top);
    game.Press(ui::Key::Escape);
    EXPECT_FALSE(game.Shown("frmFarewell"));
    EXPECT_TRUE(game.Shown("frmTop102")) << "the key puts the page away and nothing else";
    game.Press(ui::Key::Escape);
    EXPECT_TRUE(game.Shown("frmlogo"));
}

TEST_F(Farewell, TellsThePassedOverWhatItTakes)
{
    EndGame({{"Dead", 1}, {"SwissBank", 1'000'000}, {"MonthsInPower", 3}});
    EXPECT_TRUE(game.Visible("frmTop102.Label5"));
    EXPECT_THAT(game.Text("frmTop102.Label5"),
                testing::HasSubstr("You: 84 points, of which the dead are paid none. Tenth"));
    EXPECT_EQ(game.Text("frmFarewell.lblNotice(3)"), "Not among the ten");
    test::ExpectAllFit(game.Form("frmTop102"), "with a foot line");
    game.Call("See");
    EXPECT_FALSE(game.Visible("frmTop102.Label5")) << "who only looks is not told again";
}

}  // namespace
