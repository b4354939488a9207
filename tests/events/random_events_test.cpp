#include "events/play.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using test::Die;
using test::TestGame;
using testing::ElementsAre;
using testing::IsEmpty;

// On Normal an event is a draw of 1 .. 9, then one of its own.
double Event(int value)
{
    return Die(value, 9);
}

std::string Picture(TestGame& game)
{
    return game.Shown("frmNewspaper") ? game.Control("frmNewspaper.Image1").Now().picture : "";
}

const std::string kAmbassador =
    "Mr. President, we have a message from the ambassador of the United States. He ";
const std::string kNobody =
    " base to our country! Nobody is going to like this, especially the Army(Strength -10%)!";

TEST(RandomEvents, CascadeFromOneKindToTheNext)
{
    struct Case {
        const char* why;
        std::initializer_list<double> draws;
        test::FieldValues before;
        test::FieldValues after;
        const char* picture;   // empty: no newspaper
        std::string proposal;  // empty: none
    };
    const test::FieldValues disastersDone{{"EventDone[1]", 1}, {"EventDone[2]", 1}, {"EventDone[3]", 1}};
    const test::FieldValues allDone{{"EventDone[1]", 1}, {"EventDone[2]", 1}, {"EventDone[3]", 1},
                                    {"EventDone[4]", 1}, {"EventDone[5]", 1}, {"EventDone[6]", 1},
                                    {"EventDone[7]", 1}, {"EventDone[8]", 1}, {"Strength[Guerrillas]", 12}};
    // clang-format off
    const Case cases[] = {
        {"a disaster", {Event(1), Die(1, 3)}, {}, {{"EventDone[1]", 1}}, "images/news1.bmp", ""},
        {"the next disaster", {Event(1), Die(1, 3)}, {{"EventDone[1]", 1}}, {{"EventDone[2]", 1}},
         "images/news2.bmp", ""},
        {"a disaster that is past does not wait", {Event(1), Die(3, 3), Die(1, 5)}, {{"EventDone[3]", 1}},
         {{"EventDone[1]", 0}, {"EventDraw", 2}, {"EventDone[4]", 1}, {"DealCode", 1}}, "",
         kAmbassador + "wants us to declare war to Hermosita!"},
        {"a demand for want of disasters", {Event(1), Die(1, 3), Die(2, 5)}, disastersDone,
         {{"EventDone[5]", 1}, {"DealCode", 2}}, "", kAmbassador + "wants us to declare war to Feraz!"},
        {"the third war", {Event(2), Die(3, 5)}, {}, {{"DealCode", 3}}, "",
         kAmbassador + "wants us to declare war to Descalza!"},
        {"a naval base", {Event(2), Die(4, 5)}, {}, {{"DealCode", 4}, {"EventDone[7]", 1}}, "",
         kAmbassador + "asks to allow them to build a naval" + kNobody},
        {"the next demand", {Event(2), Die(4, 5)}, {{"EventDone[7]", 1}}, {{"DealCode", 5}}, "",
         kAmbassador + "asks to allow them to build an air" + kNobody},
        {"damage for want of demands", {Event(1), Die(2, 3), Die(3, 5), Die(1, 3)}, allDone,
         {{"EventDraw", 3}, {"DealCode", 6}, {"Compensation", 18'000'000}}, "images/newsg1.bmp",
         "Mr. President, the Landowners wants us to compensate them for damages of 18,000,000 dollars!"},
        {"damage to industry", {Event(4), Die(2, 3)}, {{"Strength[Guerrillas]", 13}}, {{"DealCode", 7},
         {"Compensation", 19'500'000}}, "images/newsg2.bmp",
         "Mr. President, the Industrialists wants us to compensate them for damages of 19,500,000 dollars!"},
        {"damage to the state", {Event(3), Die(3, 3)}, {{"Strength[Guerrillas]", 12},
         {"Money", 14'000'000}}, {{"Money", -1'000'000}}, "images/newsg3.bmp", ""},
        {"an army chief", {Event(5), Die(2, 6)}, {}, {{"NewsKind", 1}, {"ChiefNewsDone[5]", 1}},
         "images/newsa2.bmp", ""},
        {"a police chief", {Event(5), Die(6, 6)}, {{"ChiefNewsDone[3]", 1}}, {{"NewsKind", 2},
         {"ChiefNewsDone[3]", 1}, {"ChiefNewsDone[6]", 0}}, "images/newsp3.bmp", ""},
        {"good news", {Event(6)}, {{"Opposition[Police]", -32'765}}, {{"GoodNewsDone", 1},
         {"Opposition[Workers]", 38}, {"Opposition[Police]", -32'768}}, "images/news3.bmp", ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        TestGame game;
        game.StartGame();
        game.Set(c.before);
        game.Form("frmMain").SetEnabled(false);
        game.Tell(c.draws);
        game.Call("RandomEvents");
        EXPECT_EQ(game.TakeDrawn().size(), c.draws.size());
        game.Expect(c.after);
        EXPECT_EQ(Picture(game), c.picture);
        EXPECT_EQ(game.Shown("frmRandom2") ? game.Text("frmRandom2.Label1") : "", c.proposal);
        EXPECT_FALSE(game.Form("frmMain").Enabled());
        EXPECT_EQ(game.State().Strength[core::Prisoners], 1);  // the month has not closed yet
    }
}

// Then the month closes (the prisoners gain one) and somebody may ask.
TEST(RandomEvents, LeaveAQuietMonthToTheRequests)
{
    struct Case {
        const char* why;
        core::Level level;
        std::initializer_list<double> draws;
        test::FieldValues before;
    };
    // clang-format off
    const Case cases[] = {
        {"the highest draw", core::kEasy, {0.9999, 0.999}, {}},
        {"seven on Hard", core::kHard, {Die(7, 8), 0.999}, {}},
        {"damage, but weak guerrillas", core::kNormal, {Event(3), 0.999}, {{"Strength[Guerrillas]", 11}}},
        {"a chief's story that is barred", core::kNormal, {Event(5), Die(1, 6), 0.999},
         {{"ChiefNewsDone[1]", 1}}},
        {"good news again", core::kNormal, {Event(6), 0.999}, {{"GoodNewsDone", 1}}},
        {"all used up and weak guerrillas", core::kNormal, {Event(1), Die(3, 3), Die(5, 5), 0.999},
         {{"EventDone[3]", 1}, {"EventDone[8]", 1}, {"Strength[Guerrillas]", 11}}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        TestGame game;
        game.StartGame(c.level);
        game.Set(c.before);
        game.Form("frmMain").SetEnabled(false);
        game.Tell(c.draws);
        game.Call("RandomEvents");
        EXPECT_EQ(game.TakeDrawn().size(), c.draws.size());
        EXPECT_THAT(game.Front(), ElementsAre("frmMain", "frmMonthBanner"));
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(0)"), "");
        EXPECT_EQ(game.State().Strength[core::Prisoners], 2);
    }
}

TEST(RandomEvents, TakeFromIncomesAndPeople)
{
    struct Case {
        int disaster;
        std::array<int, 5> incomes, people;
        std::vector<std::string> sounds;
    };
    // clang-format off
    const Case cases[] = {
        {1, {133, 81, 2895, 59'214, 37'428}, {2'206'140, 2'997'840, 50'020, 4813, 10'187}, {}},
        {2, {133, 86, 2836, 59'214, 39'508}, {2'184'079, 2'937'883, 49'970, 4808, 10'167},
         {"sound/twister.wav"}},
        {3, {133, 88, 2895, 59'214, 40'755}, {2'162'017, 2'973'857, 49'770, 4789, 10'167},
         {"sound/quake.wav"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.disaster);
        TestGame game;
        game.StartGame();
        game.Tell({Event(1), Die(c.disaster, 3)});
        game.Call("RandomEvents");
        EXPECT_EQ(game.TakeSounds(), c.sounds);
        for (std::size_t f = 0; f < core::kTaxed; ++f) {
            EXPECT_EQ(game.State().IncomePerPerson[f], c.incomes[f]) << "faction " << f;
            EXPECT_EQ(game.State().Population[f], c.people[f]) << "faction " << f;
        }
    }
}

TEST(Newspaper, EndsTheMonthWithoutItsSecondHalf)
{
    TestGame game;
    game.StartGame();
    test::CalmDown(game);
    test::EndMonth(game, {Event(1), Die(1, 3)});
    game.TakeSounds();
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(4)"), "frmMain is disabled");
    const core::GameState before = game.State();
    game.Press(ui::Key::Return);
    EXPECT_THAT(game.TakeSounds(), ElementsAre("sound/click.wav"));
    EXPECT_THAT(test::Changed(before, game.State()), IsEmpty());
    EXPECT_FALSE(game.Form("frmNewspaper").Loaded());
    EXPECT_EQ(game.ClickRefused("frmMain.Label5(4)"), "");
}

// The main screen comes back with the new chief, not before.
TEST(Newspaper, LeadsToTheChoiceOfAChief)
{
    for (const auto& [story, screen] : {std::pair{1, "frmArmyC"}, std::pair{4, "frmPolc"}}) {
        TestGame game;
        game.StartGame();
        test::CalmDown(game);
        test::EndMonth(game, {Event(5), Die(story, 6)});
        game.Click("frmNewspaper.Command1");
        EXPECT_EQ(game.Front().front(), screen);
        EXPECT_FALSE(game.Form("frmMain").Enabled());
        test::PickChief(game);
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(1)"), "");

        test::CalmDown(game);  // and the next newspaper takes no chief away
        test::EndMonth(game, {Event(1), Die(1, 3)});
        game.Click("frmNewspaper.Command1");
        EXPECT_EQ(game.ClickRefused("frmMain.Label5(1)"), "");
    }
}

// Newspaper and claim stand on the screen together and are closed in either order.
TEST(Newspaper, StandsBehindAClaim)
{
    for (const bool newspaperFirst : {true, false}) {
        TestGame game;
        game.StartGame();
        test::CalmDown(game);
        game.Set({{"Strength[Guerrillas]", 14}, {"Population[Prisoners]", 0}});
        test::EndMonth(game, {Event(3), Die(1, 3)});
        EXPECT_THAT(game.Front(), ElementsAre("frmRandom2", "frmNewspaper", "frmMain", "frmMonthBanner"));
        const std::int64_t guerrillas = game.State().Strength[core::Guerrillas];
        if (newspaperFirst) {
            game.Click("frmNewspaper.Command1");
            EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "");
            EXPECT_TRUE(game.Shown("frmRandom2"));
            EXPECT_EQ(game.State().Strength[core::Guerrillas], guerrillas);
            game.Click("frmRandom2.Command1");
        } else {
            game.Click("frmRandom2.Command1");
            EXPECT_TRUE(game.Shown("frmNewspaper"));
            EXPECT_EQ(game.ClickRefused("frmMain.Label5(3)"), "");  // the menu closes the newspaper
            EXPECT_FALSE(game.Shown("frmNewspaper"));
        }
        EXPECT_FALSE(game.Shown("frmRandom2"));
        EXPECT_EQ(game.State().Strength[core::Guerrillas], guerrillas + 3);  // the month has closed once
    }
}

}  // namespace
