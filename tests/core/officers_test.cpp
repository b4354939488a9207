#include "core/officers.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace {

using core::Chance;
using core::GameState;
using core::kOfficers;

constexpr double kHighest = 0.999999;

std::vector<std::string> NumberedNames(std::size_t count = core::kNamesNeeded)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back("N" + std::to_string(i));
    }
    return names;
}

// The r that makes a draw of low .. low + n - 1 give value.
double Showing(std::int64_t value, std::int64_t low, std::int64_t n)
{
    return (static_cast<double>(value - low) + 0.5) / static_cast<double>(n);
}

// Both tables from told abilities; ambitions and ranks are drawn with the given r.
void Create(GameState& state, std::int64_t police, std::int64_t army, double ambition = 0, double rank = 0)
{
    Chance chance;
    const auto tell = [&chance](double r) {
        for (std::size_t i = 0; i < kOfficers; ++i) {
            chance.Tell(r);
        }
    };
    tell(Showing(police, 2, 9));
    tell(ambition);
    tell(rank);
    tell(Showing(army, 1, 10));
    tell(ambition);
    tell(rank);
    core::CreateChiefs(state, chance, NumberedNames());
}

TEST(Officers, AreDrawnInAFixedOrder)
{
    GameState state;
    state.ChiefNameSeed = 5;
    Chance chance;
    std::vector<std::string> rules;
    chance.onDraw = [&rules](const Chance::Drawn& drawn) {
        rules.push_back(std::to_string(static_cast<int>(drawn.n)) + "+" +
                        std::to_string(static_cast<int>(drawn.b)));
    };
    for (int i = 0; i < 66; ++i) {
        chance.Tell(0);
    }
    core::CreateChiefs(state, chance, NumberedNames());
    std::vector<std::string> expected;
    for (const char* rule : {"9+2", "4+1", "3+1", "10+1", "4+1", "3+1"}) {
        expected.insert(expected.end(), kOfficers, rule);
    }
    EXPECT_EQ(rules, expected) << "abilities, ambitions, ranks; the police before the army";
}

TEST(Officers, WantMoreTheMoreTheyCan)
{
    constexpr std::array<std::array<std::int64_t, 2>, 11> kRanges{
        {{}, {1, 4}, {1, 4}, {2, 5}, {2, 5}, {3, 6}, {4, 7}, {5, 8}, {6, 9}, {7, 10}, {8, 10}}};
    for (std::int64_t ability = 1; ability <= 10; ++ability) {
        const auto& [low, high] = kRanges[static_cast<std::size_t>(ability)];
        for (const auto& [r, ambition] : {std::pair(0.0, low), std::pair(kHighest, high)}) {
            GameState state;
            state.Difficulty = core::kHard;
            Create(state, std::max<std::int64_t>(ability, 2), ability, r);
            for (std::size_t row = 1; row < kOfficers; ++row) {
                EXPECT_EQ(core::NumberOf(state.ArmyChiefs[row][core::kAbility]), ability);
                EXPECT_EQ(core::NumberOf(state.ArmyChiefs[row][core::kAmbition]), ambition) << ability;
                EXPECT_EQ(core::NumberOf(state.PoliceChiefs[row][core::kAmbition]), ambition) << ability;
            }
        }
    }
}

TEST(Officers, InOfficeAreAdjustedToTheLevel)
{
    using core::kEasy;
    using core::kHard;
    using core::kNormal;
    const struct {
        const char* why;
        core::Level level;
        std::int64_t drawn;            // of both chiefs
        std::int64_t police, army;     // ability
        std::int64_t ambitionChanges;  // of the army chief
    } cases[] = {
        {"easy: the weakest", kEasy, 2, 5, 5, 0},
        {"easy: both gain two, and one", kEasy, 5, 8, 8, 0},
        {"easy: 7 still gains two", kEasy, 7, 10, 10, 0},
        {"easy: 8 gains one only", kEasy, 8, 9, 9, 0},
        {"easy: 9 costs the police ability, the army ambition", kEasy, 9, 9, 10, -1},
        {"easy: 10 stays 10", kEasy, 10, 10, 10, 0},
        {"normal: 5 gains two in all", kNormal, 5, 7, 7, 0},
        {"normal: so does 7", kNormal, 7, 9, 9, 0},
        {"normal: 8 gains one", kNormal, 8, 9, 9, 0},
        {"normal: 9 loses nothing", kNormal, 9, 10, 10, 0},
        {"hard: everybody gains one", kHard, 2, 3, 3, 0},
        {"hard: but not above 10", kHard, 10, 10, 10, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        GameState hard;
        hard.Difficulty = kHard;
        Create(hard, c.drawn, c.drawn);
        GameState state;
        state.Difficulty = c.level;
        Create(state, c.drawn, c.drawn);
        EXPECT_EQ(core::Ability(state.PoliceChiefs), c.police);
        EXPECT_EQ(core::Ability(state.ArmyChiefs), c.army);
        EXPECT_EQ(core::Ambition(state.ArmyChiefs), core::Ambition(hard.ArmyChiefs) + c.ambitionChanges);
        EXPECT_EQ(core::Ambition(state.PoliceChiefs), core::Ambition(hard.PoliceChiefs));
        EXPECT_EQ(core::NumberOf(state.PoliceChiefs[1][core::kAbility]), c.drawn)
            << "candidates stay as drawn";
    }
}

TEST(Officers, TakeTheirNamesInTurn)
{
    const struct {
        std::int64_t seed;
        const char *firstPolice, *lastPolice, *firstArmy, *lastArmy;
        std::int64_t next;
    } cases[] = {
        {1, "N2", "N12", "N13", "N23", 12},
        {87, "N88", "N98", "N99", "N109", 98},
        {98, "N99", "N109", "N110", "N120", 109},
        {99, "N100", "N110", "N2", "N12", 1},  // 110 lies beyond the last place to begin
        {109, "N110", "N120", "N2", "N12", 1},
    };
    for (const auto& c : cases) {
        GameState state;
        state.ChiefNameSeed = c.seed;
        Create(state, 5, 5);
        EXPECT_EQ(core::TextOf(state.PoliceChiefs[0][core::kSurname]), c.firstPolice) << c.seed;
        EXPECT_EQ(core::TextOf(state.PoliceChiefs[10][core::kSurname]), c.lastPolice) << c.seed;
        EXPECT_EQ(core::TextOf(state.ArmyChiefs[0][core::kSurname]), c.firstArmy) << c.seed;
        EXPECT_EQ(core::TextOf(state.ArmyChiefs[10][core::kSurname]), c.lastArmy) << c.seed;
        EXPECT_EQ(std::int64_t{state.ChiefNameSeed}, c.next);
    }
    for (const auto& [r, rank] :
         {std::pair(0.0, "MAJOR N7 "), std::pair(0.5, "COLONEL N7 "), std::pair(0.7, "GENERAL N7 ")}) {
        GameState state;
        state.Difficulty = core::kHard;
        state.ChiefNameSeed = 6;
        Create(state, 5, 5, 0, r);
        EXPECT_EQ(core::ChiefInOffice(state.PoliceChiefs), std::string(rank) + "6/3");
    }
}

TEST(Officers, GoByNumberWhenTheListOfNamesIsBroken)
{
    std::string many;
    for (int i = 0; i < 119; ++i) {
        many += "NAME,";
    }
    const struct {
        const char* why;
        std::string content;
        const char* message;
    } cases[] = {
        {"one name short", many + "LAST\n", "data/names, line 1: expected at least 121 surnames, found 120"},
        {"an empty name", many + "\n,X,Y,Z", "data/names, line 1: expected a surname, found an empty item"},
        {"an open quote", many + "\"X", "data/names, line 1: the text that begins here has no closing quote"},
        {"nothing in it", "", "data/names: expected at least 121 surnames, found 0"},
        {"no text at all", "\xFF\xFE", "data/names, line 1: expected UTF-8 text, found other bytes"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        test::TestGame game;
        game.folder.Write("data/names", c.content);
        game.StartGame();
        EXPECT_THAT(game.Banner(), testing::HasSubstr(c.message));
        game.Set({{"ChiefNameSeed", 10}});
        game.Call("CreateChiefs");
        game.Expect(
            {{"PoliceChiefs[0][1]", "NUMBER 11"}, {"ArmyChiefs[10][1]", "NUMBER 32"}, {"MonthsInPower", 1}});
    }
    test::TestGame game;
    game.folder.Remove("data/names");
    game.StartGame();
    EXPECT_THAT(game.Banner(), testing::HasSubstr("data/names: cannot be read (No such file or directory)"));
    game.Expect({{"Money", 50'000'000}});
}

}  // namespace
