// The ally, his price, the battle, and who pays for having lost it.
#include "support/test_game.h"
#include "threats/civil_war_rules.h"
#include "threats/dice.h"
#include "ui/screens/frm_choose.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Roll;
using testing::ElementsAre;

// Up to frmChoose, with these factions in the revolution.
void Rise(test::TestGame& game, const std::vector<int>& members)
{
    game.StartGame();
    game.State().RevolutionStarter = members.front();
    for (const int member : members) {
        game.State().Revolutionaries[static_cast<std::size_t>(member)] = 1;
    }
    game.Call("RevolutionStart");
    game.Click("frmRev.Command2");
    game.TakeSounds();
}

TEST(CivilWar, OffersAllWhoAreNotInTheRevolution)
{
    test::TestGame game;
    Rise(game, {6});
    EXPECT_EQ(
        game.Text("frmChoose.Label1"),
        "Mr.President, your personal army Strength is at 0% but you can ask help from one of the following "
        "parties");
    const char* captions[] = {"Workers Strength at 11%",    "Peasants Strength at 11%",
                              "Businessmen Strength at 8%", "Industrialists Strength at 13%",
                              "Landowners Strength at 15%", "Police Strength at 10%"};
    for (int i = 1; i <= 6; ++i) {
        const std::string button = "frmChoose.Command1(" + std::to_string(i) + ")";
        EXPECT_EQ(game.Text(button), captions[i - 1]);
        EXPECT_TRUE(game.Visible(button));
    }
    EXPECT_FALSE(game.Visible("frmChoose.Command2"));
    const ui::Rect sheet = game.Form("frmChoose").Place();
    EXPECT_EQ(sheet.height, screens::kChooseSheet.height + 6 * screens::kChooseStep);
    EXPECT_TRUE(sheet.Contains(game.Control("frmChoose.Command1(6)").Place()));
    EXPECT_THAT(game.State().ChoiceFaction, ElementsAre(0, 1, 2, 3, 4, 5, 7, 0));
}

TEST(CivilWar, NeverLeadsBackAndNothingOfTheOfferIsApplied)
{
    test::TestGame game;
    Rise(game, {6});
    game.Set({{"Strength[PersonalArmy]", 3}});
    game.Click("frmChoose.Command1(1)");
    EXPECT_THAT(game.Text("frmMes2.Label1"),
                testing::StartsWith("We will stand at your barricade, Mr.President."));
    game.Expect({{"AlliedStrength", 33}, {"AllyFaction", 1}});
    core::GameState before = game.State();
    game.Click("frmMes2.Command1");
    EXPECT_THAT(game.Front(), ElementsAre("frmChoose", "frmMain", "frmMonthBanner"));
    game.Click("frmChoose.Command1(6)");
    game.Expect({{"AlliedStrength", 28}, {"AllyFaction", 7}});
    EXPECT_THAT(test::Changed(before, game.State()), ElementsAre("AlliedStrength", "AllyFaction"));
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav", "sound/click.wav", "sound/click.wav"));
}

TEST(CivilWar, DealPaysThePriceAndStartsTheFighting)
{
    test::TestGame game;
    Rise(game, {6});
    game.Click("frmChoose.Command1(3)");
    game.folder.Write("Actions/R3", "\"Friends.\"\n1,2,3,4,5,6,7,8,9\n-1,-2,-3,-4,-5,-6,-7,-8,-9\n-10\n");
    game.State().Population[core::Prisoners] = 0;
    const core::GameState before = game.State();
    game.TakeSounds();
    game.Click("frmMes2.Command2");
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav", "sound/rev.wav"));
    EXPECT_EQ(game.Banner(),
              "Your strength is 22! Revolutioneries' strength is 70! A small civil war starts.");
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        const auto by = static_cast<std::int64_t>(g) + 1;
        EXPECT_EQ(game.State().Strength[g], before.Strength[g] + (g == core::Prisoners ? 0 : by));
        EXPECT_EQ(game.State().Opposition[g], before.Opposition[g] - by);
    }
    game.Expect({{"AmericanHostility", 40}, {"AlliedStrength", 22}});
    EXPECT_THAT(game.Front(), ElementsAre("frmMain", "frmMonthBanner"));
    EXPECT_EQ(game.Desktop().NextDue(), game.Desktop().Now() + 7500);
}

TEST(CivilWar, EachAllyHasHisPrice)
{
    struct Case {
        const char* why;
        std::int64_t ally;
        test::FieldValues before, after;
        std::vector<std::string> alsoBarred;
    };
    const Case cases[] = {
        {"workers",
         1,
         {},
         {{"ExpEducation", 1'400}, {"ExpHealth", 1'400}, {"ExpUnemployment", 1'400}},
         {"1", "2", "3", "4", "11", "12"}},
        {"peasants", 2, {}, {{"IncomePerPerson[Peasants]", 1'100}, {"IncomePerPerson[Landowners]", 900}}, {}},
        {"businessmen", 3, {}, {{"ExpAllowances", 1'500}, {"ExpPolice", 800}}, {"5", "6", "9", "10"}},
        {"industrialists, from the treasury", 4, {{"SwissBank", 49'999'999}}, {{"Money", -49'999'000}}, {}},
        {"industrialists, from Switzerland", 4, {{"SwissBank", 50'000'000}}, {{"SwissBank", 0}}, {}},
        {"landowners",
         5,
         {{"SwissBank", 25'000'000}},
         {{"SwissBank", 0}, {"ExpState", 1'500}, {"War", 1}, {"GuerrillaWar", 1}},
         {"18"}},
        {"army", 6, {}, {{"ExpArmy", 1'500}, {"ExpPolice", 800}}, {"7", "8", "9", "10"}},
        {"police", 7, {}, {{"ExpArmy", 600}, {"ExpPolice", 1'400}}, {"7", "8", "9", "10"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state;
        for (const char* field :
             {"ExpState", "ExpEducation", "ExpHealth", "ExpAllowances", "ExpArmy", "ExpPolice",
              "ExpUnemployment", "IncomePerPerson[Peasants]", "IncomePerPerson[Landowners]", "Money"}) {
            test::SetFields(state, {{field, 1'000}});
        }
        test::SetFields(state, c.before);
        core::GameState expected = state;
        test::SetFields(expected, c.after);
        for (const std::string& action : c.alsoBarred) {
            test::SetFields(expected, {{"ActionDone[" + action + "]", 1}});
        }
        threats::PayAlly(state, c.ally);
        EXPECT_EQ(core::FirstDifference(state, expected), "");
    }
}

TEST(CivilWar, BattleFavoursTheStronger)
{
    struct Case {
        const char* why;
        std::int64_t allied, rebels;
        std::int64_t ours, oursOf, theirs, theirsOf;
        bool won;
    };
    const Case cases[] = {
        {"equal strength favours the rebels", 40, 40, 10, 10, 11, 15, false},
        {"a tie is won", 40, 40, 10, 10, 10, 15, true},
        {"nine more always win", 50, 41, 1, 15, 10, 10, true},
        {"ten fewer always lose", 30, 40, 10, 10, 1, 15, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        core::GameState state;
        state.AlliedStrength = c.allied;
        state.RevolutionaryStrength = c.rebels;
        test::ToldChance chance({Roll(c.ours, 1, c.oursOf), Roll(c.theirs, 1, c.theirsOf)});
        EXPECT_EQ(threats::BattleIsWon(state, chance), c.won);
        test::ExpectFields(
            state, {{"AlliedStrength", c.allied + c.ours}, {"RevolutionaryStrength", c.rebels + c.theirs}});
    }
}

// Beaten once, for good: the force that struck gets a new chief, the other one keeps its own.
TEST(CivilWar, AfterACoupTheChiefIsReplaced)
{
    const struct {
        const char *army, *police;  // their chiefs' ambition
        std::int64_t armyAmbition, policeAmbition, coup;
        const char *announced, *screen, *appointed, *wait, *theirs, *others;
    } cases[] = {
        {"ArmyChiefs[0][3]", "PoliceChiefs[0][3]", 10, 1, 11, "Army", "frmArmyC", " IS THE NEW ARMY CHIEF!",
         "RevolutionWait[6]", "ArmyChiefs[0][1]", "PoliceChiefs[0][1]"},
        {"ArmyChiefs[0][3]", "PoliceChiefs[0][3]", 1, 10, 22, "Police", "frmPolc",
         " IS THE NEW POLICE CHIEF!", "RevolutionWait[7]", "PoliceChiefs[0][1]", "ArmyChiefs[0][1]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.announced);
        test::TestGame game;
        game.StartGame();
        game.Set({{"MonthsInPower", 4},
                  {"PoliceChiefs[0][2]", 1},
                  {"Strength[Police]", 40},
                  {c.army, c.armyAmbition},
                  {c.police, c.policeAmbition},
                  {c.theirs, "HE"},
                  {c.others, "THE OTHER"}});
        game.Click("frmMain.Label5(4)");
        game.Tell({0});
        game.Wait(3000);
        game.Click("frmMes3.Command1");
        EXPECT_EQ(game.Control("frmRev.Image1").Now().picture, "images/coup.bmp");
        EXPECT_THAT(game.Text("frmRev.Label2"),
                    testing::StartsWith("Mr.President, the " + std::string(c.announced) +
                                        " started a war against you!"));
        game.Click("frmRev.Command2");
        game.Click("frmChoose.Command1(5)");
        game.Click("frmMes2.Command2");
        game.Set({{"AlliedStrength", 100}, {"PoliceNoInfo", 1}});
        game.Wait(7500);
        EXPECT_EQ(game.Banner(), "You win! Revolutioneries' leaders were arrested and executed!");
        game.Expect({{"CoupState", c.coup}, {"PoliceNoInfo", 0}, {c.wait, 4}});  // the month has been closed
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "frmMain is disabled");
        game.Wait(7500);
        EXPECT_EQ(game.Front().front(), c.screen);
        game.Click(std::string(c.screen) + ".Label1(3)");
        EXPECT_THAT(game.Banner(), testing::EndsWith(c.appointed));
        game.Expect({{"CoupState", 0}, {c.others, "THE OTHER"}});
        EXPECT_NE(game.Text(std::string(c.screen) + ".Label1(0)"), "HE");
        EXPECT_FALSE(game.Desktop().NextDue().has_value());
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "");
    }
}

TEST(CivilWar, WhoseOfferCannotBeReadCannotBeAsked)
{
    test::TestGame game;
    game.folder.Remove("Actions/R1");
    game.folder.Write("Actions/R7", "\"Half of an offer\",1,2,3");
    Rise(game, {6, 2, 3, 4, 5});
    const core::GameState before = game.State();

    game.Click("frmChoose.Command1(1)");
    const std::string first = game.Banner();
    EXPECT_THAT(first, testing::StartsWith("Mr.President, the Workers cannot be asked. Actions/R1: "));
    EXPECT_EQ(game.Text("frmChoose.Label1"), first);  // the dialog lies over the banner
    EXPECT_EQ(game.ClickRefused("frmChoose.Command1(1)"), "frmChoose.Command1(1) is disabled");
    EXPECT_FALSE(game.Visible("frmChoose.Command2"));

    game.Click("frmChoose.Command1(2)");
    EXPECT_EQ(game.Banner(),
              "Mr.President, the Police cannot be asked. Actions/R7, line 1: expected 20 items, "
              "found 4. We have thanked them all the same.");
    EXPECT_THAT(test::Changed(before, game.State()), testing::IsEmpty());
    EXPECT_TRUE(game.Form("frmChoose").Place().Contains(game.Control("frmChoose.Command2").Place()));
    game.Tell({Roll(2, 1, 10)});
    game.Click("frmChoose.Command2");
    game.Wait(5000);
    EXPECT_EQ(game.Banner(), "Congratulations! You made it alive to the United States!");
}

TEST(CivilWar, ARefusalGivesWayToTheQuestionWhenAnotherAllyIsDeclined)
{
    test::TestGame game;
    game.folder.Remove("Actions/R1");
    Rise(game, {6});
    const std::string question = game.Text("frmChoose.Label1");
    game.Click("frmChoose.Command1(1)");
    game.Click("frmChoose.Command1(2)");
    game.Click("frmMes2.Command1");
    EXPECT_EQ(game.Text("frmChoose.Label1"), question);
}

TEST(CivilWar, AnOfferThatVanishesIsNotPaidFor)
{
    test::TestGame game;
    Rise(game, {6});
    game.Click("frmChoose.Command1(1)");
    game.folder.Remove("Actions/R1");
    const core::GameState before = game.State();
    game.Click("frmMes2.Command2");
    EXPECT_THAT(test::Changed(before, game.State()), testing::IsEmpty());
    EXPECT_EQ(game.Front().front(), "frmChoose");
    EXPECT_FALSE(game.Shown("frmMes2"));
    game.Click("frmChoose.Command1(2)");
    EXPECT_TRUE(game.Shown("frmMes2"));
}

TEST(CivilWar, AgainstEverybodyOnlyTheFlightIsLeft)
{
    test::TestGame game;
    Rise(game, {1, 2, 3, 4, 5, 6, 7});
    EXPECT_FALSE(game.Visible("frmChoose.Command1(1)"));
    EXPECT_TRUE(game.Visible("frmChoose.Command2"));
}

}  // namespace
