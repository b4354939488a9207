#include "core/actions.h"
#include "office/challenge_rules.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace {

using core::Kind;
using core::Who;
using office::Challenge;
using enum office::Challenge;
using Notes = std::vector<core::Note>;

constexpr std::int64_t kLast = 14;

// Thirteen quiet months on Hard with money abroad, ended by helicopter in the fourteenth.
struct Reign {
    core::GameState state;
    persist::Chronicle closed;
    Notes last{{Kind::Flight, Who::Nobody, 1, kLast}, {Kind::End, Who::Nobody, 1, kLast}};

    Reign()
    {
        state.Difficulty = core::kHard;
        state.MonthsInPower = kLast;
        state.SwissBank = 1;
        for (std::int64_t month = 2; month < kLast; ++month) {
            closed.push_back({.month = month, .swiss = 1});
        }
    }
};

Notes Asked(int times, std::int64_t request, std::int64_t answer)
{
    Notes notes;
    for (int i = 0; i < times; ++i) {
        notes.push_back({Kind::Request, Who::Workers, request, 0});
        notes.push_back({Kind::WarBegins, Who::Nobody, 0, 0});  // something may stand between
        notes.push_back({Kind::Answer, Who::Workers, answer, 0});
    }
    return notes;
}

TEST(Challenges, AreJudgedByWhatWasNoted)
{
    const std::vector<Challenge> quiet{Unbought, AtPeace, CleanHands, Undivided};
    const auto without = [&quiet](std::initializer_list<Challenge> lost,
                                  std::initializer_list<Challenge> won = {}) {
        std::vector<Challenge> met(won);
        std::copy_if(quiet.begin(), quiet.end(), std::back_inserter(met), [&lost](Challenge each) {
            return std::find(lost.begin(), lost.end(), each) == lost.end();
        });
        std::sort(met.begin(), met.end());
        return met;
    };
    const auto action = [](std::int64_t number) { return Notes{{Kind::Action, Who::Nobody, number, 0}}; };
    const auto ally = [](Who first, Who second) {
        return Notes{{Kind::Ally, first, 9, 0}, {Kind::Ally, second, 9, 0}};
    };
    const struct {
        const char* why;
        Notes notes;
        std::vector<Challenge> met;
    } cases[] = {
        {"nothing", {}, quiet},
        {"an island", action(core::kSellIsland), without({Undivided})},
        {"prisoners executed", action(core::kExecutePrisoners), without({CleanHands})},
        {"plotters executed", {{Kind::Executed, Who::Army, 12, 0}}, without({CleanHands})},
        {"plotters spared", {{Kind::Spared, Who::Army, 0, 0}}, quiet},
        {"a base", {{Kind::Base, Who::Americans, 1, 0}}, without({Unbought})},
        {"aid asked for, and refused", action(core::kAskForAid), without({Unbought})},
        {"a kiss", action(core::kCourtAmericans), without({Unbought})},
        {"an attack", action(core::kAttackGuerrillas), without({AtPeace})},
        {"a war", {{Kind::WarBegins, Who::Feraz, 0, 0}}, without({AtPeace})},
        {"a campaign granted",
         {{Kind::Request, Who::Landowners, 7, 0}, {Kind::Answer, Who::Landowners, 1, 0}},
         without({AtPeace})},
        {"a campaign refused",
         {{Kind::Request, Who::Landowners, 7, 0}, {Kind::Answer, Who::Landowners, 0, 0}},
         quiet},
        {"a claim paid",
         {{Kind::Claim, Who::Landowners, 7, 0}, {Kind::Answer, Who::Landowners, 1, 0}},
         quiet},
        {"the landowners' help", ally(Who::Police, Who::Landowners), without({AtPeace})},
        {"the police's help", ally(Who::Police, Who::Police), without({}, {OnlyPolice})},
        {"the army's too", ally(Who::Police, Who::Army), quiet},
        {"five granted", Asked(5, 1, 1), without({AtPeace}, {NeverSaidNo})},
        {"four granted", Asked(4, 1, 1), without({AtPeace})},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        Reign reign;
        reign.closed[3].notes = c.notes;
        EXPECT_EQ(office::ChallengesMet(reign.state, reign.closed, reign.last), c.met);
        reign.closed[3].notes.clear();
        reign.last.insert(reign.last.begin(), c.notes.begin(), c.notes.end());
        EXPECT_EQ(office::ChallengesMet(reign.state, reign.closed, reign.last), c.met) << "in the last month";
    }
}

TEST(Challenges, WantAWholePresidencyAndALivingPresident)
{
    const struct {
        const char* why;
        void (*change)(Reign& reign);
        std::size_t met;
    } cases[] = {
        {"as it was", [](Reign&) {}, 4},
        {"on foot", [](Reign& r) { r.last.front().amount = 0; }, 5},
        {"an empty account", [](Reign& r) { r.state.SwissBank = 0; }, 4},
        {"an account that was always empty",
         [](Reign& r) {
             r.state.SwissBank = 0;
             for (auto& row : r.closed) {
                 row.swiss = 0;
             }
         },
         5},
        {"dead", [](Reign& r) { r.state.Dead = 1; }, 0},
        {"too early", [](Reign& r) { r.state.MonthsInPower = 11; }, 0},
        {"no chronicle", [](Reign& r) { r.closed.clear(); }, 0},
        {"its beginning lost", [](Reign& r) { r.closed.erase(r.closed.begin()); }, 0},
        {"a month lost", [](Reign& r) { r.closed.erase(r.closed.begin() + 4); }, 0},
        {"its end lost", [](Reign& r) { r.closed.pop_back(); }, 0},
        {"saved in the first month",
         [](Reign& r) { r.closed.insert(r.closed.begin(), {.month = 1, .swiss = 1}); }, 4},
        {"closed with the end", [](Reign& r) { r.closed.push_back({.month = kLast, .swiss = 1}); }, 4},
    };
    for (const auto& c : cases) {
        Reign reign;
        c.change(reign);
        EXPECT_EQ(office::ChallengesMet(reign.state, reign.closed, reign.last).size(), c.met) << c.why;
    }
    EXPECT_EQ(office::StampOf({}), "");
    EXPECT_EQ(office::StampOf({OnlyPolice}), "Stamped: Only the police");
    EXPECT_EQ(office::StampOf({OnlyPolice, OnFoot, AtPeace, Undivided}),
              "Stamped: Only the police, On foot and 2 more");
}

// Fourteen months, an execution just before the game is saved, a load, and a walk across the border: the stamp tells
// what the loaded game did, and the hall of a game without its chronicle has none.
TEST(Challenges, AreStampedInTheHallAfterALoadedGame)
{
    for (const bool chronicle : {true, false}) {
        test::TestGame game;
        game.game.Autosave(true);
        game.StartGame();
        game.Set({{"SaveSlot", 1}});
        while (game.State().MonthsInPower < 13) {
            game.Set({{"Strength[Guerrillas]", 1}, {"Strength[Prisoners]", 1}, {"Money", 90'000'000}});
            game.Click("frmMain.Label5(4)");
            game.Tell({0.999, 0.999});  // no event and no request
            game.Wait(3000);
        }
        game.Set({{"ActionChoice", core::kExecutePrisoners}});
        game.Call("MakeAction");
        game.Call("save");
        if (!chronicle) {
            game.folder.Remove("Save/Save1.chronicle");
        }
        game.Call("Load");
        game.Set({{"Strength[Guerrillas]", 60}});
        game.Click("frmMain.Label5(4)");
        game.Wait(3000);
        ASSERT_TRUE(game.Shown("frmGRev"));
        game.Tell({0.15});  // he arrives
        game.Click("frmGRev.Command1");
        game.Wait(30'000);
        ASSERT_TRUE(game.Shown("frmTop102"));
        EXPECT_EQ(game.Visible("frmTop102.lblStamp"), chronicle);
        if (chronicle) {
            EXPECT_EQ(game.Text("frmTop102.lblStamp"), "Stamped: Unbought, At peace and 2 more");
        }
    }
}

}  // namespace
