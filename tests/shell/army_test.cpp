#include "support/test_game.h"

#include <gtest/gtest.h>

namespace {

class ArmyScreen : public testing::Test {
protected:
    ArmyScreen() { game.StartGame(); }
    void Open() { game.Click("frmMain.Label5(3)"); }

    test::TestGame game;
};

TEST_F(ArmyScreen, NamesTheChiefAndEverybodysStrength)
{
    game.Set({{"ArmyChiefs[0][0]", "GENERAL"},
              {"ArmyChiefs[0][1]", "VALDORO"},
              {"ArmyChiefs[0][2]", 10},
              {"ArmyChiefs[0][3]", 5},
              {"Strength[Army]", 32767},
              {"Strength[Guerrillas]", 1},
              {"HermositaStrength", 60},
              {"FerazStrength", -5},
              {"DescalzaStrength", 12345}});
    Open();
    const struct {
        const char *label, *text;
    } cases[] = {
        {"Label1", "ARMY CHIEF IS GENERAL VALDORO 10/5"},
        {"Label2", "Our army's strength is 32767"},
        {"Label3", "Guerrillas' strength is 1"},
        {"Label4", "Hermosita's strength is 60"},
        {"Label5", "Feraz's strength is -5"},
        {"Label6", "Descalza's strength is 12345"},
        {"Command1", "View Army Chiefs"},
        {"Command2", "Intelligence Service Report"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(game.Text(std::string("frmArmy.") + c.label), c.text);
    }
    EXPECT_EQ(game.Banner(), " ");
}

TEST_F(ArmyScreen, TellsWarFromPeace)
{
    const struct {
        const char* why;
        std::int64_t war, campaign;
        const char* text;
    } cases[] = {
        {"peace", 0, 0, "We are in peace with all of our neigbors"},
        {"the first neighbour", 1, 0, "We are in war with Hermosita!"},
        {"the second", 2, 0, "We are in war with Feraz!"},
        {"the third", 3, 0, "We are in war with Descalza!"},
        {"no neighbour: as before", 4, 0, "We are in war with Descalza!"},
        {"a campaign", 1, 1, "We are currently attacking the Guerrillas!"},
        {"a campaign without a war: as before", 0, 1, "We are currently attacking the Guerrillas!"},
        {"a campaign of another kind: as before", 2, 2, "We are currently attacking the Guerrillas!"},
    };
    for (const auto& c : cases) {
        game.Set({{"War", c.war}, {"GuerrillaWar", c.campaign}});
        Open();
        EXPECT_EQ(game.Text("frmArmy.Label7"), c.text) << c.why;
    }
}

TEST_F(ArmyScreen, MarksIslandsThatAreGoneForGood)
{
    const auto marks = [this](std::int64_t sold) {
        game.Set({{"IslandsSold", sold}});
        Open();
        std::string shown;
        for (const char* mark : {"frmArmy.Label10", "frmArmy.Label11", "frmArmy.Label12"}) {
            shown += game.Visible(mark) ? '1' : '0';
        }
        return shown;
    };
    EXPECT_EQ(marks(0), "000");
    EXPECT_EQ(marks(4), "000") << "there are three islands";
    EXPECT_EQ(marks(1), "100");
    EXPECT_EQ(marks(3), "111");
    EXPECT_EQ(marks(2), "111") << "marks are never taken away";
}

TEST_F(ArmyScreen, ShowsTheAmericanBasesWhileTheyStand)
{
    const struct {
        std::int64_t naval, air;
        bool navalShown, airShown;
    } cases[] = {{0, 0, false, false},
                 {1, 0, true, false},
                 {1, 1, true, true},
                 {0, 1, false, true},
                 {2, 2, false, false}};
    for (const auto& c : cases) {
        game.Set({{"NavalBase", c.naval}, {"AirBase", c.air}});
        Open();
        for (const auto& [control, shown] :
             {std::pair("frmArmy.Image8", c.navalShown), std::pair("frmArmy.Label8", c.navalShown),
              std::pair("frmArmy.Image9", c.airShown), std::pair("frmArmy.Label9", c.airShown)}) {
            EXPECT_EQ(game.Visible(control), shown) << control << ", " << c.naval << c.air;
        }
    }
}

TEST_F(ArmyScreen, IsClosedByTheNextCommand)
{
    Open();
    EXPECT_TRUE(game.Shown("frmArmy"));
    game.Click("frmMain.Label5(4)");
    EXPECT_FALSE(game.Shown("frmArmy"));
}

}  // namespace
