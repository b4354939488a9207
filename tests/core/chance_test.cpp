#include "core/chance.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

namespace {

using core::Chance;

constexpr float kLargest = 0x1.fffffep-1F;  // the largest float below 1

TEST(Chance, NeverReachesTheUpperEnd)
{
    const struct {
        const char* why;
        double r, n, b;
        std::int64_t value;
    } cases[] = {
        {"the lowest", 0, 87, 1, 1},
        {"the highest", kLargest, 87, 1, 87},
        {"a float product would be 86", kLargest, 26, 60, 85},
        {"and far from zero it would be even more", kLargest, 9, 1'000'000, 1'000'008},
        {"what rounds to 1 becomes the largest below", 0.99999999999, 9, 1, 9},
        {"just below a border", 0.1111111, 9, 1, 1},
        {"r is a float: the nearest lies above the border", 0.11111111, 9, 1, 2},
        {"a negative start", 0, 5, -2, -2},
        {"a fraction in the rule", 0.5, 2.5, 0.2, 1},
        {"below zero it goes down", 0, 1, -0.5, -1},
    };
    for (const auto& c : cases) {
        Chance chance;
        chance.Tell(c.r);
        EXPECT_EQ(chance.Draw(c.n, c.b), c.value) << c.why;
    }
}

TEST(Chance, TakesWhatItWasToldFirstAndTellsWhatItDrew)
{
    Chance chance;
    std::vector<Chance::Drawn> drawn;
    chance.onDraw = [&drawn](const Chance::Drawn& draw) { drawn.push_back(draw); };
    chance.Tell(0.5);
    chance.Seed(7);  // what was told still comes first
    chance.Tell(0.25);
    EXPECT_EQ(chance.Between(1, 15), 8);
    EXPECT_EQ(chance.Draw(8, 0), 2);
    chance.Draw(8, 0);
    ASSERT_EQ(drawn.size(), 3U);
    EXPECT_EQ(drawn[0].n, 15);
    EXPECT_EQ(drawn[0].b, 1);
    EXPECT_EQ(drawn[0].r, 0.5F);
    EXPECT_EQ(drawn[0].value, 8);

    Chance untold;
    untold.Seed(7);
    EXPECT_EQ(untold.Draw(8, 0), drawn[2].value) << "told draws leave the generator alone";
}

TEST(Chance, CoversItsRangeEvenly)
{
    Chance chance;
    chance.Seed(1);
    std::map<std::int64_t, int> counts;
    for (int i = 0; i < 90'000; ++i) {
        ++counts[chance.Between(1, 9)];
    }
    EXPECT_EQ(counts.size(), 9U);
    for (const auto& [value, count] : counts) {
        EXPECT_NEAR(count, 10'000, 500) << value;  // five standard deviations
    }
}

TEST(Chance, DrawsWithinOneTickOfTheClockDiffer)
{
    Chance chance([] { return std::uint64_t{12345}; });
    std::set<std::int64_t> values;
    for (int i = 0; i < 100; ++i) {
        values.insert(chance.Draw(1'000'000, 0));
    }
    EXPECT_GT(values.size(), 95U);
}

TEST(Chance, FollowsTheClockUntilItIsSeeded)
{
    const auto draws = [](std::uint64_t firstTick, bool seeded) {
        Chance chance([tick = firstTick]() mutable { return tick++; });
        if (seeded) {
            chance.Seed(3);
        }
        std::vector<std::int64_t> values;
        for (int i = 0; i < 10; ++i) {
            values.push_back(chance.Draw(1'000'000, 0));
        }
        return values;
    };
    EXPECT_NE(draws(1, false), draws(2, false));
    EXPECT_EQ(draws(1, true), draws(2, true));
}

}  // namespace
