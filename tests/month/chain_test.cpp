#include "month/chain.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Chain : public testing::Test {
protected:
    Chain()
    {
        for (std::size_t i = 0; i < month::kLinks; ++i) {
            chain.links.at(i) = [this, i] {
                story.push_back(std::to_string(i));
                return static_cast<int>(i) == happens;
            };
        }
        chain.request = Tells("request");
        chain.hallOfFame = Tells("hall");
        chain.attempt = Tells("attempt");
    }

    std::function<void()> Tells(const char* what)
    {
        return [this, what] { story.push_back(what); };
    }

    ui::Desktop desktop;
    screens::FrmMain main{desktop};
    screens::FrmMonthBanner banner{desktop};
    core::GameState state;
    core::Chance chance;
    core::Journal journal{state};
    month::Month month{state, chance, journal, main, banner};
    month::Chain chain{state, month, main, banner};
    int happens = -1;  // the link whose event happens
    std::vector<std::string> story;
};

TEST_F(Chain, TriesItsLinksInOrderUntilOneHappens)
{
    happens = 2;
    main.Timer1.SetInterval(3000);
    desktop.Advance(3000);
    EXPECT_THAT(story, ElementsAre("0", "1", "2"));
    EXPECT_FALSE(main.Timer1.Armed());

    story.clear();
    chain.From(month::Link::Assassination);
    EXPECT_THAT(story, ElementsAre("6", "7", "request")) << "a link called by its name goes on with the rest";
}

TEST_F(Chain, MournsFourSecondsBeforeTheHallOfFame)
{
    main.Timer6.SetInterval(5500);
    desktop.Advance(5499);
    EXPECT_EQ(std::int64_t{state.Dead}, 0);
    desktop.Advance(1);
    EXPECT_EQ(banner.Label1.Text(), " Y O U   A R E   D E A D ! ");
    EXPECT_EQ(std::int64_t{state.Dead}, 1);
    EXPECT_TRUE(main.Visible());
    desktop.Advance(3999);
    EXPECT_THAT(story, IsEmpty());
    desktop.Advance(1);
    EXPECT_EQ(banner.Label1.Text(), " ");
    EXPECT_THAT(story, ElementsAre("hall"));
    desktop.Advance(1'000'000);
    EXPECT_EQ(story.size(), 1U);
}

// Which event is due when several could be: the first of the list.
TEST(MonthsEvents, FollowTheirOrder)
{
    const struct {
        const char* why;
        test::FieldValues fields;
        const char* shown;
    } cases[] = {
        {"nobody but chance",
         {{"AmericanHostility", 70}, {"Strength[Prisoners]", 11}, {"Strength[Guerrillas]", 14}},
         "frmNewspaper"},
        {"the Americans go first",
         {{"AmericanHostility", 71}, {"War", 1}, {"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 15}},
         "frmUSA"},
        {"a war before the prisoners", {{"War", 3}, {"Strength[Prisoners]", 12}}, "frmWAR"},
        {"the prisoners before the guerrillas",
         {{"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 20}},
         "frmPrRev"},
        {"the guerrillas before a chief",
         {{"Strength[Guerrillas]", 15},
          {"MonthsInPower", 9},
          {"Strength[Army]", 40},
          {"ArmyChiefs[0][3]", 10}},
         "frmGRev"},
        {"a chief before the people",
         {{"MonthsInPower", 9},
          {"Strength[Army]", 40},
          {"ArmyChiefs[0][3]", 10},
          {"Strength[Workers]", 30},
          {"Opposition[Workers]", 130}},
         "frmMes3"},
        {"the people before a murderer",
         {{"Strength[Peasants]", 30}, {"Opposition[Peasants]", 130}, {"Opposition[Workers]", 200}},
         "frmRev"},
        {"a murderer", {{"Opposition[Workers]", 200}}, "frmMes"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        test::TestGame game;
        game.StartGame();
        game.State().Strength.fill(20);
        game.State().Opposition.fill(0);
        game.Set({{"AmericanHostility", 0}, {"Strength[Guerrillas]", 1}, {"Strength[Prisoners]", 0}});
        game.Set(c.fields);
        game.Tell({0.0, 0.0, 0.0, 0.0, 0.0});
        game.Call("Timer1_Timer");
        EXPECT_THAT(game.Front(), testing::Contains(c.shown));
    }
}

}  // namespace
