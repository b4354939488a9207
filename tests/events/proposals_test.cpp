#include "events/play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::TestGame;
using testing::ElementsAre;

// The month's second half changes nothing in a country without people and opposition but the guerrillas,
// who gain three; so what else changes is the answer's.
void EmptyCountry(TestGame& game)
{
    game.State().Population.fill(0);
    game.State().Opposition.fill(0);
    game.Set(
        {{"AmericanHostility", 50}, {"Compensation", 1'234'567}, {"ExpState", 1'500'000'000}, {"Money", 7}});
    game.Call("FixNum");
}

void Propose(TestGame& game, int code)
{
    game.Form("frmMain").SetEnabled(false);
    game.Set({{"DealCode", code}});
    game.Form("frmRandom2").Show();
    game.TakeSounds();
}

TEST(Proposals, AreAccepted)
{
    struct Case {
        int code;
        test::FieldValues after;
        const char* told;
    };
    const test::FieldValues base{{"USBases", 1},
                                 {"AmericanHostility", 40},
                                 {"Strength[Army]", 60},
                                 {"Opposition[Workers]", 5},
                                 {"Opposition[Peasants]", 4},
                                 {"Opposition[Businessmen]", 3},
                                 {"Opposition[Industrialists]", 2},
                                 {"Opposition[Landowners]", 1},
                                 {"Opposition[Army]", 10},
                                 {"Opposition[Police]", 2}};
    const auto war = [](int with) {
        return test::FieldValues{{"War", with}, {"AmericanHostility", 40}, {"ExpState", 2'147'483'647}};
    };
    const auto with = [](test::FieldValues values, const char* name) {
        values.emplace_back(name, 1);
        return values;
    };
    const Case cases[] = {
        {1, war(1), "We declared war to Hermosita!"},
        {2, war(2), "We declared war to Feraz!"},
        {3, war(3), "We declared war to Descalza!"},
        {4, with(base, "NavalBase"), "We now have 1 USA bases in our country!"},
        {5, with(base, "AirBase"), "We now have 1 USA bases in our country!"},
        {6, {{"Money", -1'234'560}}, "1,234,567 dollars have been paid to the Landowners!"},
        {7, {{"Money", -1'234'560}}, "1,234,567 dollars have been paid to the Industrialists!"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("proposal " + std::to_string(c.code));
        TestGame game;
        game.StartGame();
        EmptyCountry(game);
        const std::int64_t guerrillas = game.State().Strength[core::Guerrillas];
        Propose(game, c.code);
        game.Click("frmRandom2.Command1");
        EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
        EXPECT_EQ(game.Banner(), c.told);
        game.Expect(c.after);
        EXPECT_GT(game.State().Strength[core::Guerrillas], guerrillas);
        EXPECT_EQ(game.Shown("frmNewspaper"), c.code <= 3);
        if (c.code <= 3) {
            EXPECT_EQ(game.Control("frmNewspaper.Image1").Now().picture, "images/newswar.bmp");
        }
        EXPECT_FALSE(game.Shown("frmRandom2"));
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
    }
}

TEST(Proposals, CountTheBases)
{
    TestGame game;
    game.StartGame();
    for (const int code : {4, 5}) {
        Propose(game, code);
        game.Click("frmRandom2.Command1");
    }
    EXPECT_EQ(game.Banner(), "We now have 2 USA bases in our country!");
    game.Expect({{"USBases", 2}, {"NavalBase", 1}, {"AirBase", 1}, {"Strength[Army]", 50}});
}

TEST(Proposals, AreRefused)
{
    for (int code = 1; code <= 7; ++code) {
        SCOPED_TRACE("proposal " + std::to_string(code));
        TestGame game;
        game.StartGame();
        EmptyCountry(game);
        const std::string banner = game.Banner();
        Propose(game, code);
        game.Click("frmRandom2.Command2");
        game.Expect({{"AmericanHostility", code <= 5 ? 80 : 50},
                     {"Opposition[Landowners]", code == 6 ? 30 : 0},
                     {"Opposition[Industrialists]", code == 7 ? 30 : 0},
                     {"Money", 7},
                     {"USBases", 0},
                     {"War", 0}});
        EXPECT_EQ(game.Banner(), banner);
        EXPECT_FALSE(game.Shown("frmRandom2"));
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
    }
}

TEST(Cia, ComesAtSeventyOne)
{
    for (const int hostility : {70, 71}) {
        TestGame game;
        game.StartGame();
        test::CalmDown(game);
        game.Set({{"AmericanHostility", hostility}});
        test::EndMonth(game, {0.999, 0.999});
        EXPECT_EQ(game.Shown("frmUSA"), hostility == 71);
        if (hostility == 71) {
            EXPECT_TRUE(game.TakeDrawn().empty());  // nothing else was tried
            EXPECT_EQ(game.Text("frmUSA.Label1"), "Assasination attempt from C.I.A !");
            game.TakeSounds();
            game.Click("frmUSA.Command1");
            EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav", "sound/Assasin5.wav"));
            game.Expect({{"AssassinationAttempts", 1}, {"Dead", 0}});
            game.Wait(5499);
            game.Expect({{"Dead", 0}});
            game.Wait(1);
            game.Expect({{"Dead", 1}});
            EXPECT_EQ(game.Banner(), " Y O U   A R E   D E A D ! ");
        }
    }
}

}  // namespace
