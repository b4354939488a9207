// Amounts as players of different countries type them.
#include "core/numbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using core::NumberFormat;

const NumberFormat kComma{};
const NumberFormat kPoint{.group = ".", .decimal = ","};
const NumberFormat kBlank{.group = "\u202F", .decimal = ","};

TEST(ParseAmount, ReadsNumbersAndNothingElse)
{
    struct Case {
        const NumberFormat& format;
        const char* text;
        std::optional<double> amount;
    };
    const Case cases[] = {
        {kComma, "0", 0},
        {kComma, "-0", 0},
        {kComma, "1500000", 1500000},
        {kComma, "1,500,000", 1500000},
        {kComma, "  1,500  ", 1500},
        {kComma, "1500,000.25", std::nullopt},
        {kComma, "-1,500.5", -1500.5},
        {kComma, "+7", 7},
        {kComma, ".5", .5},
        {kComma, "5.", 5},
        {kComma, "12,5", std::nullopt},
        {kComma, ",500", std::nullopt},
        {kComma, "1,,500", std::nullopt},
        {kComma, "1,500,", std::nullopt},
        {kComma, "1.500.000", std::nullopt},
        {kComma, "", std::nullopt},
        {kComma, " ", std::nullopt},
        {kComma, "-", std::nullopt},
        {kComma, ".", std::nullopt},
        {kComma, "- 5", std::nullopt},
        {kComma, "1e6", std::nullopt},
        {kComma, "0x10", std::nullopt},
        {kComma, "inf", std::nullopt},
        {kComma, "50 000", std::nullopt},
        {kPoint, "1.500.000,5", 1500000.5},
        {kPoint, "1500,5", 1500.5},
        {kPoint, "1,500.5", std::nullopt},
        {kBlank, "1\u202F500\u202F000,5", 1500000.5},
        {kBlank, "1 500 000", 1500000},
        {kBlank, "1 50", std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string("'") + c.text + "' with '" + c.format.decimal + "'");
        EXPECT_EQ(c.format.ParseAmount(c.text), c.amount);
    }
    EXPECT_EQ(kComma.ParseAmount("-" + std::string(400, '9')), -INFINITY);
}

TEST(ParseAmount, ReadsBackWhatAmountWrites)
{
    for (const NumberFormat& format : {kComma, kPoint, kBlank}) {
        for (const std::int64_t value :
             {std::int64_t{0}, std::int64_t{999}, std::int64_t{1000}, std::int64_t{-2147483648}}) {
            EXPECT_EQ(format.ParseAmount(format.Amount(value)), static_cast<double>(value));
        }
    }
}

}  // namespace
