#include "core/variants.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

// Whoever plays each month reads all texts in turn; another game, another card and a later block begin elsewhere.
TEST(Variants, TakeTurns)
{
    core::GameState state;
    state.ChiefNameSeed = 17;
    std::set<std::size_t> firsts;
    for (int block = 0; block < 40; ++block) {
        std::set<std::size_t> read;
        for (int month = 0; month < 5; ++month) {
            state.MonthsInPower = block * 5 + month;
            read.insert(core::TurnOf(state, "7", 5));
            if (month == 0) {
                firsts.insert(core::TurnOf(state, "7", 5));
            }
        }
        EXPECT_EQ(read.size(), 5U) << block;
    }
    EXPECT_EQ(firsts.size(), 5U);

    const core::GameState now = state;
    std::set<std::size_t> elsewhere;
    for (int game = 1; game <= 40; ++game) {
        state.ChiefNameSeed = game;
        elsewhere.insert(core::TurnOf(state, "7", 5));
    }
    EXPECT_EQ(elsewhere.size(), 5U);
    EXPECT_EQ(core::TurnOf(now, "M1", 1), 0U);
    state = now;
    state.MonthsInPower = core::i16::kMin;  // by hand, in a saved game
    EXPECT_LT(core::TurnOf(state, "7", 5), 5U);
}

TEST(Variants, LeaveTheCardItsWordsAndTellWhy)
{
    const struct {
        const char* why;
        const char* content;  // null: no file
        const char* told;     // empty: nothing
    } cases[] = {
        {"two good sets", "\"a\"\r\n\"b\"\r\n\"c\"\r\n\"d\"\r\n", ""},
        {"no file", nullptr, "Data/variants/M1: "},
        {"an empty file", "", "Data/variants/M1: expected sets of 2 texts, found 0"},
        {"half a set", "\"a\"\r\n\"b\"\r\n\"c\"\r\n",
         "Data/variants/M1, line 3: expected sets of 2 texts, found 3"},
        {"a bare word", "\"a\"\r\nb\r\n", "Data/variants/M1, line 2: expected a text in quotes, found \"b\""},
        {"an empty text", "\"a\"\r\n\"\"\r\n",
         "Data/variants/M1, line 2: expected a text, found an empty one"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const test::TemporaryFolder folder;
        if (c.content != nullptr) {
            folder.Write("Data/variants/M1", c.content);
        }
        const files::ProgramFolder program(folder.Path());
        core::GameState state;
        core::Variants variants(state, program);
        std::string told;
        variants.onTrouble = [&told](const files::FileError& error) { told = error.Message(); };
        std::set<std::string> read;
        const auto vary = [&] {
            for (int month = 0; month < 3; ++month) {
                state.MonthsInPower = month;
                std::string text = "own";
                std::string answer = "own";
                variants.Vary("M1", {&text, &answer});
                read.insert(text + "/" + answer);
            }
        };
        vary();
        EXPECT_EQ(read, std::set<std::string>{"own/own"}) << "nothing varies until it is switched on";
        variants.on = true;
        vary();
        const std::set<std::string> all{"a/b", "c/d", "own/own"};
        EXPECT_EQ(read, *c.told == '\0' ? all : std::set<std::string>{"own/own"});
        EXPECT_EQ(told.substr(0, std::string(c.told).size()), c.told);
    }
}

}  // namespace
