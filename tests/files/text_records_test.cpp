#include "files/text_records.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using files::Item;
using testing::HasSubstr;

// Items as one line: text@line, with quotes around a quoted one.
std::string Shown(const std::vector<Item>& items)
{
    std::string shown;
    for (const Item& item : items) {
        const std::string quote = item.quoted ? "\"" : "";
        shown += quote + item.text + quote + "@" + std::to_string(item.line) + " ";
    }
    return shown;
}

TEST(TextRecords, AreParsedItemByItem)
{
    const struct {
        const char* why;
        std::string content, items;
    } cases[] = {
        {"nothing", "", ""},
        {"one item without a line end", "ADA", "ADA@1 "},
        {"commas and line ends alike", "1,2\n3\n", "1@1 2@1 3@2 "},
        {"CR LF", "1,2\r\n3\r\n", "1@1 2@1 3@2 "},
        {"a CR alone is text", "1\r2,3", "1\r2@1 3@1 "},
        {"empty items", ",a,,b,", "@1 a@1 @1 b@1 @1 "},
        {"an empty line is an empty item", "a\n\nb", "a@1 @2 b@3 "},
        {"a comma before the line end leaves an empty item", "a,\nb", "a@1 @1 b@2 "},
        {"a comma in quotes", "\"a,b\",c", "\"a,b\"@1 c@1 "},
        {"a quote is doubled", "\"say \"\"no\"\"\"", "\"say \"no\"\"@1 "},
        {"only a quote", "\"\"\"\"", "\"\"\"@1 "},
        {"an empty text", "\"\",1", "\"\"@1 1@1 "},
        {"line ends within quotes are counted", "\"a\nb\",c\nd", "\"a\nb\"@1 c@2 d@3 "},
        {"blanks around quotes", "1, \"a, b\" ,\t\"c\"\t\n2", "1@1 \"a, b\"@1 \"c\"@1 2@2 "},
        {"blanks of other items stay", " a , b ", " a @1  b @1 "},
        {"a quote within an item", "a\"b\",c", "a\"b\"@1 c@1 "},
        {"a byte order mark", "\xEF\xBB\xBF\"a\",b", "\"a\"@1 b@1 "},
        {"letters of other scripts", "\u00D1ANDU,\u0416", "\u00D1ANDU@1 \u0416@1 "},
        {"bytes of value 0", std::string("a\0b,c", 5), std::string("a\0b@1 c@1 ", 10)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto items = files::ParseItems(c.content, "data/x");
        ASSERT_TRUE(items) << items.Error().Message();
        EXPECT_EQ(Shown(*items), c.items);
    }
}

TEST(TextRecords, TellWhereAFileIsBroken)
{
    const struct {
        const char* why;
        std::string content, message;
    } cases[] = {
        {"a quote that is never closed", "1\n\"ab\ncd\n",
         "data/x, line 2: the text that begins here has no closing quote"},
        {"only the opening quote", "\"", "data/x, line 1: the text that begins here has no closing quote"},
        {"the last quote is a doubled one", "\"a\"\"",
         "data/x, line 1: the text that begins here has no closing quote"},
        {"letters behind a quote", "1\n2,\"a\"b",
         "data/x, line 2: expected a comma or the line's end behind the closing quote"},
        {"a quote behind a quote", "\"a\" \"b\"",
         "data/x, line 1: expected a comma or the line's end behind the closing quote"},
        {"a single quote within quotes", "\"a\"b\"",
         "data/x, line 1: expected a comma or the line's end behind the closing quote"},
        {"other bytes than UTF-8", "a\nb\xE9\n", "data/x, line 2: expected UTF-8 text, found other bytes"},
        {"half a character at the end", "a\xC3", "data/x, line 1: expected UTF-8 text, found other bytes"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto items = files::ParseItems(c.content, "data/x");
        ASSERT_FALSE(items);
        EXPECT_EQ(items.Error().Message(), c.message);
    }
}

TEST(TextRecords, AreReadWholeOrNotAtAll)
{
    const test::TemporaryFolder folder;
    folder.Write("here", "a,b");
    folder.Write("folder/inside", "");
    folder.Write("largest", std::string(files::kLargestFile, 'x'));
    folder.Write("larger", std::string(files::kLargestFile + 1, 'x'));

    EXPECT_EQ(Shown(*files::ReadItems(folder.Path("here"), "here")), "a@1 b@1 ");
    EXPECT_EQ(files::ReadItems(folder.Path("largest"), "largest")->front().text.size(), files::kLargestFile);
    EXPECT_THAT(files::ReadItems(folder.Path("larger"), "larger").Error().Message(),
                HasSubstr("larger: expected at most 1048576 bytes"));
    EXPECT_EQ(files::ReadItems(folder.Path("folder"), "folder").Error().Message(),
              "folder: expected a file, found a folder");
    EXPECT_EQ(files::ReadItems(folder.Path("nowhere"), "data/nowhere").Error().Message(),
              "data/nowhere: cannot be read (No such file or directory)");
    EXPECT_FALSE(files::ReadWhole("/dev/zero", "zeros")) << "a file without an end";
}

TEST(TextRecords, HoldWholeNumbers)
{
    const struct {
        const char* text;
        std::optional<std::int64_t> value;
    } cases[] = {
        {"0", 0},
        {"-5", -5},
        {" 12 ", 12},
        {"\t7", 7},
        {"007", 7},
        {"9223372036854775807", 9223372036854775807},
        {"", std::nullopt},
        {" ", std::nullopt},
        {"-", std::nullopt},
        {"+5", std::nullopt},
        {"1.0", std::nullopt},
        {"1e3", std::nullopt},
        {"1 2", std::nullopt},
        {"0x10", std::nullopt},
        {"5%", std::nullopt},
        {"9223372036854775808", std::nullopt},
        {"- 5", std::nullopt},
        {"\u0665", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(files::AsInteger({.text = c.text}), c.value) << '"' << c.text << '"';
    }
    EXPECT_EQ(files::AsInteger({.text = "+5", .quoted = true}), 5) << "a card may show a plus sign";
    EXPECT_EQ(files::AsInteger({.text = "+-5", .quoted = true}), std::nullopt);
}

}  // namespace
