#include "core/officers.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using core::Chance;
using core::GameState;
using core::kOfficers;

std::vector<std::string> NumberedNames(std::size_t count = core::kNamesNeeded)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < count; ++i) {
        names.push_back("N" + std::to_string(i));
    }
    return names;
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
