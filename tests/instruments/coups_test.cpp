// When a chief strikes, and what the month does then.
#include "instruments/coups.h"
#include "media/recording_host.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr const char* kArmy = "Mr.President, Army chief betrayed you and he is trying to seize power!";
constexpr const char* kPolice = "Mr.President, Police chief betrayed you and he is trying to seize power!";

TEST(ChiefCoup, NeedsTimeStrengthAmbitionAndABadDraw)
{
    struct Case {
        const char* why;
        std::int64_t months, level;
        std::int64_t army, armyAmbition, police, policeAmbition;
        std::vector<double> dice;
        std::int64_t coup;  // CoupState, 0 = none
    };
    // clang-format off
    const Case cases[] = {
        //                                      army     police
        {"none in the first three months", 3, 1, 40, 10,  25, 10, {},           0},
        {"the army's, in the fourth",      4, 1, 40, 6,   25, 10, {0.199},      1},
        {"a draw of 3 in 10 spares",       4, 1, 40, 6,   0,  10, {0.2},        0},
        {"weak armies keep quiet",         4, 1, 39, 10,  24, 10, {},           0},
        {"modest chiefs, too",             4, 1, 40, 5,   25, 5,  {},           0},
        {"the police's after the army's",  4, 1, 40, 6,   25, 6,  {0.2, 0.199}, 2},
        {"both draws spare",               4, 1, 40, 6,   25, 6,  {0.2, 0.2},   0},
        {"2 in 5 on Hard for a 10",        4, 2, 40, 10,  0,  0,  {0.399},      1},
        {"3 in 5 spares",                  4, 2, 40, 10,  0,  0,  {0.4},        0},
        {"2 in 11 on Easy for a 6",        4, 0, 40, 6,   0,  0,  {0.181},      1},
        {"3 in 11 spares",                 4, 0, 40, 6,   0,  0,  {0.182},      0},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state;
        state.MonthsInPower = c.months;
        state.Difficulty = c.level;
        state.CoupState = 22;  // of an earlier coup
        state.Strength[core::Army] = c.army;
        state.ArmyChiefs[0][core::kAmbition] = core::i32{c.armyAmbition};
        state.Strength[core::Police] = c.police;
        state.PoliceChiefs[0][core::kAmbition] = core::i32{c.policeAmbition};

        core::Chance chance;
        std::size_t draws = 0;
        chance.onDraw = [&draws](const core::Chance::Drawn&) { ++draws; };
        for (const double r : c.dice) {
            chance.Tell(r);
        }
        ui::Desktop desktop;
        screens::FrmMes3 message(desktop);
        media::RecordingHost host;
        media::Sound sound(host);
        core::Journal journal(state);
        instruments::Coups coups(state, chance, journal, message, sound);
        int revolutions = 0;
        coups.revolutionStart = [&] {
            ++revolutions;
            EXPECT_FALSE(message.Visible());
        };

        EXPECT_EQ(coups.ChiefCoup(), c.coup != 0);
        EXPECT_EQ(draws, c.dice.size());
        test::ExpectFields(state, {{"CoupState", c.coup},
                                   {"RevolutionStarter", c.coup == 0 ? 0 : c.coup + 5},
                                   {"Revolutionaries[6]", c.coup == 1 ? 1 : 0},
                                   {"Revolutionaries[7]", c.coup == 2 ? 1 : 0}});
        EXPECT_EQ(message.Visible(), c.coup != 0);
        if (c.coup != 0) {
            EXPECT_EQ(message.Label1.Text(), c.coup == 1 ? kArmy : kPolice);
            EXPECT_EQ(desktop.Click(message.Command1), std::nullopt);
            EXPECT_THAT(host.sounds, testing::ElementsAre("sound/click.wav"));
            EXPECT_EQ(revolutions, 1);
        }
    }
}

// The month's chain comes by here: "Ooops!" stands before the player three seconds after the month's end.
TEST(ChiefCoup, HappensAtTheMonthsEnd)
{
    test::TestGame game;
    game.StartGame();
    game.Set({{"MonthsInPower", 3},
              {"ArmyChiefs[0][3]", 10},
              {"PoliceChiefs[0][2]", 5},
              {"Strength[Guerrillas]", 1}});
    game.Tell({0.0});
    game.Click("frmMain.Label5(4)");
    EXPECT_FALSE(game.Shown("frmMes3"));
    game.Wait(3000);
    EXPECT_TRUE(game.Shown("frmMes3"));
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(4)"), "frmMain is disabled");
}

}  // namespace
