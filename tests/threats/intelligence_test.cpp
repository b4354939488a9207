// What the service foresees, how it says so, and how long its bars are.
#include "support/test_game.h"
#include "ui/screens/frm_ain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

struct Mood {
    int faction;
    std::int64_t opposition, strength;
    std::int64_t revolutionWait = 0, assassinWait = 0;
};

// A calm country but for these.
void Show(test::TestGame& game, const std::vector<Mood>& moods)
{
    core::GameState& state = game.State();
    state.Opposition.fill(0);
    state.RevolutionWait.fill(0);
    state.AssassinWait.fill(0);
    for (const Mood& mood : moods) {
        const auto n = static_cast<std::size_t>(mood.faction);
        state.Opposition[n - 1] = mood.opposition;
        state.Strength[n - 1] = mood.strength;
        state.RevolutionWait[n] = mood.revolutionWait;
        state.AssassinWait[n] = mood.assassinWait;
    }
    game.Call("ArmyIn");
}

TEST(Intelligence, BarsGrowWithEachPointAndAreCutWithASign)
{
    struct Case {
        const char* why;
        std::int64_t opposition;
        std::int64_t twips;
        int pixels;
        bool cut;
    };
    const Case cases[] = {
        {"no bar below 65", 64, 195, 13, false},
        {"one point", 65, 495, 26, false},
        {"at 100", 100, 10'995, 481, false},
        {"the last that has room", 102, 11'595, 507, false},
        {"the first that has not", 103, 11'895, 514, true},
        {"the greatest", 32'767, 9'811'095, 514, true},
    };
    test::TestGame game;
    game.StartGame();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        Show(game, {{2, c.opposition, 30}, {6, c.opposition, 29}});
        const struct {
            const char *bar, *sign;
        } bars[] = {{"frmAIN.Rpro(2)", "frmAIN.RproGoesOn(2)"}, {"frmAIN.APro(6)", "frmAIN.AProGoesOn(6)"}};
        for (const auto& [bar, sign] : bars) {
            EXPECT_EQ(game.Control(bar).Now().twips, c.twips);
            EXPECT_EQ(game.Control(bar).Place().width, c.pixels);
            EXPECT_EQ(game.Visible(sign), c.cut);
        }
        EXPECT_EQ(game.Control("frmAIN.APro(2)").Now().twips, 195);
        EXPECT_EQ(game.Control("frmAIN.Rpro(6)").Now().twips, 195);
    }
}

TEST(Intelligence, IsOpenedFromTheArmyScreenAndChangesNothing)
{
    test::TestGame game;
    game.StartGame();
    game.Click("frmMain.Label5(3)");
    game.TakeSounds();
    const core::GameState before = game.State();
    game.Click("frmArmy.Command2");
    EXPECT_THAT(game.TakeSounds(), testing::ElementsAre("sound/click.wav"));
    EXPECT_THAT(game.Front(), testing::ElementsAre("frmAIN", "frmMain", "frmMonthBanner"));
    EXPECT_THAT(test::Changed(before, game.State()), testing::IsEmpty());
    game.Click("frmMain.Label5(3)");
    EXPECT_FALSE(game.Shown("frmAIN"));
}

}  // namespace
