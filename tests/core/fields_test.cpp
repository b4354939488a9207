#include "core/fields.h"

#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <set>
#include <string>

namespace {

using core::Element;
using core::GameState;
using core::Value;
using testing::ElementsAre;
using testing::HasSubstr;

// A value that the element does not hold yet.
Value Another(const Value& value)
{
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return *number == 7 ? std::int64_t{8} : std::int64_t{7};
    }
    if (std::holds_alternative<float>(value)) {
        return 33.25F;
    }
    return std::string("another");
}

TEST(Fields, AreSetAndReadOneByOne)
{
    std::set<std::string> names;
    for (const Element& element : core::AllElements()) {
        const std::string name = element.Name();
        EXPECT_TRUE(names.insert(name).second) << name << " is there twice";

        const std::optional<Element> found = core::FindElement(name);
        ASSERT_TRUE(found) << name;
        GameState state;
        const GameState before = state;
        const Value value = Another(element.Get(state));
        EXPECT_EQ(found->Set(state, value), std::nullopt) << name;
        EXPECT_EQ(element.Get(state), value) << name;
        EXPECT_THAT(test::Changed(before, state), ElementsAre(name));
        EXPECT_EQ(core::FirstDifference(before, state), name);
    }
    EXPECT_EQ(core::FirstDifference(GameState{}, GameState{}), "");
}

TEST(Fields, AreZeroWhenTheProgramStarts)
{
    const GameState state;
    for (const Element& element : core::AllElements()) {
        const Value value = element.Get(state);
        EXPECT_TRUE(value == Value{std::int64_t{0}} || value == Value{0.0F} || value == Value{std::string()})
            << element.Name();
    }
}

TEST(Fields, RefuseWhatDoesNotFit)
{
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    const struct {
        const char* name;
        Value value;
        const char* expected;
    } cases[] = {
        {"Strength[Army]", std::int64_t{32768}, "-32768 to 32767"},
        {"Strength[PersonalArmy]", std::int64_t{-32769}, "-32768 to 32767"},
        {"StrengthPct[PersonalArmy]", 1.5F, "a whole number"},
        {"StrengthPct[Army]", "1", "a number"},
        {"StrengthPct[Army]", kInfinite, "a number"},
        {"StrengthPct[Army]", std::monostate{}, "a number"},
        {"Money", std::int64_t{2'147'483'648}, "-2147483648 to 2147483647"},
        {"Money", 0.5F, "a whole number"},
        {"Money", "1", "a whole number"},
        {"Money", std::monostate{}, "a whole number"},
        {"Difficulty", std::int64_t{-1}, "0 to 255"},
        {"ActionDone[25]", std::int64_t{256}, "0 to 255"},
        {"PlayerName", std::int64_t{1}, "a text"},
        {"PoliceChiefs[0][2]", 1.5F, "a text, or a whole number"},
        {"ArmyChiefs[10][3]", std::int64_t{2'147'483'648}, "a text, or a whole number"},
    };
    for (const auto& c : cases) {
        GameState state;
        const auto expected = core::FindElement(c.name)->Set(state, c.value);
        ASSERT_TRUE(expected) << c.name;
        EXPECT_THAT(*expected, HasSubstr(c.expected));
        EXPECT_EQ(core::FirstDifference(state, GameState{}), "");
    }
}

TEST(Fields, TakeTheirLimits)
{
    const test::FieldValues limits{
        {"Opposition[Prisoners]", -32768}, {"Opposition[Police]", 32767},
        {"Money", -2'147'483'648},         {"SwissBank", 2'147'483'647},
        {"TaxRate[Landowners]", 255},      {"TaxRate[Workers]", 0},
        {"StrengthPct[Police]", 1e30F},    {"PoliceChiefs[10][0]", std::monostate{}},
        {"PoliceChiefs[10][1]", "X"},      {"ArmyChiefs[0][2]", -2'147'483'648},
        {"AttemptStrength[8][1]", 255},    {"PlayerName", ""},
    };
    GameState state;
    test::SetFields(state, limits);
    test::ExpectFields(state, limits);
    ASSERT_EQ(core::FindElement("StrengthPct[Army]")->Set(state, std::int64_t{3}), std::nullopt);
    EXPECT_EQ(state.StrengthPct[core::Army], 3.0F) << "a whole number fits a fraction";
}

TEST(Fields, AreFoundByTheirExactNamesOnly)
{
    for (const char* name : {"",
                             "[",
                             "[]",
                             "Gold",
                             "money",
                             "Money ",
                             "Money[0]",
                             "Strength",
                             "Strength[]",
                             "Strength[5]",
                             "Strength[army]",
                             "Strength[Army",
                             "Strength[Army]]",
                             "Strength[Army][0]",
                             "StrengthPct",
                             "Opposition[PersonalArmy]",
                             "TaxRate[Army]",
                             "TaxIncome[Police]",
                             "ActionDone",
                             "ActionDone[26]",
                             "ActionDone[-1]",
                             "ActionDone[+1]",
                             "ActionDone[01]",
                             "ActionDone[1 ]",
                             "ActionDone[99999999999999999999]",
                             "PoliceChiefs[0]",
                             "PoliceChiefs[0][4]",
                             "PoliceChiefs[11][0]",
                             "PoliceChiefs[0][0][0]",
                             "AttemptStrength[9][0]",
                             "ChiefNewsDone[7]",
                             "Revolutionaries[10]"}) {
        EXPECT_FALSE(core::FindElement(name)) << name;
    }
}

}  // namespace
