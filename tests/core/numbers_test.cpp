#include "core/numbers.h"

#include "core/saturated.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();

TEST(Numbers, RoundHalvesToEven)
{
    const struct {
        double value;
        std::int64_t rounded;
    } cases[] = {
        {0.5, 0},
        {1.5, 2},
        {2.5, 2},
        {3.5, 4},
        {-0.5, 0},
        {-1.5, -2},
        {-2.5, -2},
        {2.5000000001, 3},
        {-2.5000000001, -3},
        {0.49999999999999994, 0},  // adding a half first would give 1
        {0.0, 0},
        {-0.0, 0},
        {4503599627370497.5, 4503599627370498},  // the largest double with a half
        {9007199254740993.0, 9007199254740992},
        {1e30, kMost},
        {-1e30, kLeast},
        {9223372036854775808.0, kMost},
        {-9223372036854775808.0, kLeast},
        {std::nan(""), 0},
        {std::numeric_limits<double>::infinity(), kMost},
        {-std::numeric_limits<double>::infinity(), kLeast},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(core::RoundHalfEven(c.value), c.rounded) << c.value;
    }
}

TEST(Numbers, ChangeByPercentAndRoundOnce)
{
    const struct {
        std::int64_t value;
        double percent;
        std::int64_t changed;
    } cases[] = {
        {100, 10, 110},
        {50, -5, 48},  // 47.5
        {10, 25, 12},  // 12.5
        {30, 25, 38},  // 37.5
        {0, 50, 0},
        {-10, 50, -15},
        {3'571'748, -7, 3'321'726},           // 3,321,725.64
        {2'147'483'647, 100, 4'294'967'294},  // may leave a field: the field saturates
    };
    for (const auto& c : cases) {
        EXPECT_EQ(core::ChangedByPercent(c.value, c.percent), c.changed) << c.value << " by " << c.percent;
    }
}

TEST(Numbers, AreWrittenAsTheUsersCountryWritesThem)
{
    const core::NumberFormat plain;
    const core::NumberFormat thin{"\u202F", ","};  // three bytes between the groups
    const core::NumberFormat none{"", "."};
    const struct {
        std::int64_t value;
        const char *plain, *thin, *none;
    } amounts[] = {
        {0, "0", "0", "0"},
        {999, "999", "999", "999"},
        {-999, "-999", "-999", "-999"},
        {1000, "1,000", "1\u202F000", "1000"},
        {-15'630'952, "-15,630,952", "-15\u202F630\u202F952", "-15630952"},
        {2'147'483'647, "2,147,483,647", "2\u202F147\u202F483\u202F647", "2147483647"},
        {kLeast, "-9,223,372,036,854,775,808", "-9\u202F223\u202F372\u202F036\u202F854\u202F775\u202F808",
         "-9223372036854775808"},
    };
    for (const auto& c : amounts) {
        EXPECT_EQ(plain.Amount(c.value), c.plain);
        EXPECT_EQ(thin.Amount(c.value), c.thin);
        EXPECT_EQ(none.Amount(c.value), c.none);
    }
    EXPECT_EQ(plain.Amount(1234.5), "1,234") << "halves to even";
    EXPECT_EQ(plain.Amount(1235.5), "1,236");
    EXPECT_EQ(plain.Amount(-0.4), "0");

    const struct {
        double value;
        const char *plain, *thin;
    } tenths[] = {
        {0, "0.0", "0,0"},          {0.25, "0.2", "0,2"},    {0.75, "0.8", "0,8"},
        {-0.25, "-0.2", "-0,2"},    {-0.04, "0.0", "0,0"},   {9.96, "10.0", "10,0"},
        {-12.34, "-12.3", "-12,3"}, {100, "100.0", "100,0"}, {1234.5, "1234.5", "1234,5"},
    };
    for (const auto& c : tenths) {
        EXPECT_EQ(plain.OneDecimal(c.value), c.plain) << c.value;
        EXPECT_EQ(thin.OneDecimal(c.value), c.thin) << c.value;
    }
}

// A store beyond a field's limits stays at the limit.
template <class T> void ExpectHeld(std::int64_t start, std::int64_t by, std::int64_t held)
{
    T field = start;
    field += by;
    EXPECT_EQ(std::int64_t{field}, held) << start << " + " << by;
    if (by != kLeast) {
        field = start;
        field -= -by;
        EXPECT_EQ(std::int64_t{field}, held) << start << " - " << -by;
    }
}

TEST(Numbers, FieldsStayWithinTheirWidth)
{
    ExpectHeld<core::i16>(32760, 7, 32767);
    ExpectHeld<core::i16>(32760, 8, 32767);
    ExpectHeld<core::i16>(-32768, -1, -32768);
    ExpectHeld<core::i16>(40000, -10, 32757);
    ExpectHeld<core::u8>(255, 1, 255);
    ExpectHeld<core::u8>(0, -1, 0);
    ExpectHeld<core::u8>(3, -4, 0);
    ExpectHeld<core::u8>(-7, 5, 5);
    ExpectHeld<core::i32>(2'147'483'647, 1, 2'147'483'647);
    ExpectHeld<core::i32>(-2'000'000'000, -2'000'000'000, -2'147'483'648);
    ExpectHeld<core::i32>(1, kMost, 2'147'483'647);
    ExpectHeld<core::i32>(-1, kLeast, -2'147'483'648);
    core::i32 money = -1;
    money -= kLeast;
    EXPECT_EQ(std::int64_t{money}, 2'147'483'647);
    static_assert(!std::is_constructible_v<core::i16, double>, "fractions must be rounded first");
}

}  // namespace
