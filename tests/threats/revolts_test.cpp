// The guerrillas and the prisoners, up to the dialog; then either is fought, won and lost.
#include "support/test_game.h"
#include "threats/dice.h"
#include "threats/revolt_rules.h"
#include "ui/look/look.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Roll;
using testing::ElementsAre;

// People whose mood lends a bonus of 10: half of them hate the president wholly.
core::GameState Discontent()
{
    core::GameState state;
    state.Difficulty = core::kNormal;
    state.Population[core::Workers] = 10'000;
    state.Population[core::Guerrillas] = 10'000;
    state.Opposition[core::Guerrillas] = 100;
    state.TotalPopulation = 20'000;
    return state;
}

TEST(Revolts, GuerrillasGatherByLevel)
{
    struct Case {
        std::int64_t level, rebels;
    };
    const Case cases[] = {{core::kEasy, 31}, {core::kNormal, 34}, {core::kHard, 39}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.level);
        core::GameState state = Discontent();
        state.Difficulty = c.level;
        state.Strength[core::Guerrillas] = 16;
        EXPECT_EQ(threats::UnrestBonus(state), 10);
        threats::RaiseGuerrillas(state);
        EXPECT_EQ(state.RevolutionaryStrength, c.rebels);
    }
}

TEST(Revolts, GuerrillasPayForTheirRevolt)
{
    core::GameState state = Discontent();
    state.Strength = {10, 10, 10, 10, 10, 10, 10, 15, 5, 10};
    state.Opposition[core::Businessmen] = 20;
    EXPECT_EQ(threats::RaiseGuerrillas(state), 32);  // (15 + 10) x 1.3 = 32.5 of 100, before anybody gains
    test::ExpectFields(state, {
                                  {"RevolutionaryStrength", 32},
                                  {"TotalStrength", 100},
                                  {"Revolutions", 1},
                                  {"OutsiderRevolt", 1},
                                  {"RevolutionStarter", 0},
                                  {"RevolutionaryPct", 0},
                                  {"Opposition[Businessmen]", 25},
                                  {"Opposition[Army]", 0},
                                  {"Population[Guerrillas]", 8'800},  // 7 + 5 percent of them are dead
                                  {"Victims", 1'200},
                              });
    EXPECT_THAT(state.Strength, ElementsAre(18, 18, 15, 17, 17, 10, 10, 7, 5, 10));
    EXPECT_THAT(state.Revolutionaries, ElementsAre(0, 1, 1, 1, 1, 1, 0, 0, 0, 0));
}

TEST(Revolts, PrisonersAreJoinedByTheGuerrillas)
{
    core::GameState state = Discontent();
    state.Population[core::Workers] = 0;
    state.Population[core::Prisoners] = 59'987;
    state.TotalPopulation = 69'987;  // mean opposition 14.3, so a bonus of 3
    state.Strength = {10, 10, 10, 10, 10, 10, 10, 20, 12, 0};
    EXPECT_EQ(threats::RaisePrisoners(state), 39);  // 15 x 1.3 = 19.5, so 20, and 20 more, of 102
    test::ExpectFields(state, {
                                  {"RevolutionaryStrength", 40},
                                  {"Revolutions", 1},
                                  {"OutsiderRevolt", 1},
                                  {"Strength[Landowners]", 17},
                                  {"Opposition[Workers]", 5},
                                  {"Opposition[Peasants]", 5},
                                  {"Opposition[Businessmen]", 0},
                                  {"Strength[Guerrillas]", 15},
                                  {"Strength[Prisoners]", 1},
                                  {"Population[Guerrillas]", 8'000},
                                  {"Population[Prisoners]", 59'987 - 3'599},
                                  {"Victims", 5'599},
                              });
    EXPECT_THAT(state.Revolutionaries, ElementsAre(0, 1, 1, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Revolts, AreAnnouncedFoughtAndDecidedByClicks)
{
    struct Case {
        const char* why;
        const char* rising;  // its Strength is 20
        std::string dialog;
        std::vector<std::string> candidates;
        std::int64_t ours, theirs;  // rolls of the battle
        bool won;
    };
    const std::vector<std::string> two{"Army", "Police"};
    const std::vector<std::string> five{"Businessmen", "Industrialists", "Landowners", "Army", "Police"};
    const Case cases[] = {
        {"guerrillas beaten in a tie", "Strength[Guerrillas]", "frmGRev", two, 7, 7, true},
        {"guerrillas win by one", "Strength[Guerrillas]", "frmGRev", two, 7, 8, false},
        {"prisoners beaten", "Strength[Prisoners]", "frmPrRev", five, 10, 10, true},
        {"prisoners win", "Strength[Prisoners]", "frmPrRev", five, 10, 11, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        test::TestGame game;
        game.StartGame(core::kEasy);
        game.Set({{"PoliceChiefs[0][2]", 1}, {c.rising, 20}, {"Strength[PersonalArmy]", 0}});
        game.Click("frmMain.Label5(4)");
        game.TakeSounds();
        game.Wait(3000);
        EXPECT_EQ(game.Front().front(), c.dialog);
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/croud.wav"));
        EXPECT_EQ(game.BannerBack(), look::kRed);
        EXPECT_THAT(
            game.Text(c.dialog + ".Label3"),
            testing::MatchesRegex("Revolutionaries total strength is at [0-9]+%! What do you want to do\\?"));

        game.Click(c.dialog + ".Command2");
        std::vector<std::string> offered;
        for (int i = 1; i <= 6; ++i) {
            const std::string button = "frmChoose.Command1(" + std::to_string(i) + ")";
            if (game.Visible(button)) {
                offered.push_back(game.Text(button).substr(0, game.Text(button).find(' ')));
            }
        }
        EXPECT_EQ(offered, c.candidates);
        game.Click("frmChoose.Command1(1)");
        game.Set({{"AlliedStrength", 50}, {"RevolutionaryStrength", 50}});  // the rebels count as stronger
        game.Click("frmMes2.Command2");
        game.Tell({Roll(c.ours, 1, 10), Roll(c.theirs, 1, 15)});
        game.Wait(7500);
        EXPECT_EQ(game.BannerBack(), look::kBlack);
        game.Expect({{"Dead", c.won ? 0 : 1}, {"OutsiderRevolt", c.won ? 0 : 1}, {"RevolutionWait[1]", 0}});
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), c.won ? "" : "frmMain is disabled");
    }
}

TEST(Revolts, PrisonersComeBeforeGuerrillas)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"Strength[Prisoners]", 12}, {"Strength[Guerrillas]", 20}});
    game.Call("Timer1_Timer");
    EXPECT_TRUE(game.Shown("frmPrRev"));
    EXPECT_FALSE(game.Shown("frmGRev"));
}

}  // namespace
