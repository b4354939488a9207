// How values are written in a record file, and read again.
#include "files/text_records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace {

TEST(TextForm, WritesFractionsWithSevenDigits)
{
    struct Case {
        float value;
        const char* text;
    };
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const Case cases[] = {
        {0, "0"},
        {100, "100"},
        {0.1F, "0.1"},
        {9.090909F, "9.090909"},
        {33.333332F, "33.33333"},
        {-12.5F, "-12.5"},
        {1e-10F, "1e-10"},
        {std::numeric_limits<float>::max(), "3.402823e+38"},
        {kInfinity, "0"},
        {std::nanf(""), "0"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(files::Number(c.value), c.text);
    }
    std::mt19937 random(1);
    for (int i = 0; i < 10'000; ++i) {
        const auto bits = static_cast<std::uint32_t>(random());
        float value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value) && std::fpclassify(value) != FP_SUBNORMAL) {
            const std::optional<float> read = files::AsFloat({files::Number(value)});
            ASSERT_TRUE(read) << files::Number(value);
            EXPECT_NEAR(*read / value, 1, 1e-6);
        }
    }
    EXPECT_EQ(files::AsFloat({"1e99"}), std::nullopt);
    EXPECT_EQ(files::AsFloat({"nan"}), std::nullopt);
    EXPECT_EQ(files::AsFloat({"1,5"}), std::nullopt);
}

TEST(TextForm, GivesTextsBackAsTheyWent)
{
    const std::string texts[] = {"",
                                 "Ada",
                                 "\"",
                                 "\"\"quoted\"\", twice",
                                 "a, b",
                                 "two\r\nlines\n",
                                 " blanks ",
                                 "Žižka",
                                 "大統領",
                                 "👩‍🚀",
                                 std::string(1, '\0'),
                                 "\xEF\xBB\xBFmark"};
    for (const std::string& text : texts) {
        const auto items = files::ParseItems(files::Text(text) + "\r\n7\r\n", "test");
        ASSERT_TRUE(items) << items.Error().Message();
        ASSERT_EQ(items->size(), 2U);
        EXPECT_EQ((*items)[0].text, text);
        EXPECT_TRUE((*items)[0].quoted);
    }
    EXPECT_EQ(files::Text("\xFFoops"), "\"\uFFFDoops\"") << "a file of ours is always UTF-8";
}

}  // namespace
