// What is printed is said as a person would say it.
#include "ui/reading/wording.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace reading;

TEST(Wording, SaysAmountsSignsAndShouts)
{
    const struct {
        const char* why;
        const char* printed;
        const char* said;
    } cases[] = {
        {"a balance", "-15,630,952", "minus 15.6 million"},
        {"points group as well", "150.000.000$!", "150 million dollars"},
        {"so do narrow blanks", "2\u202f206\u202f140", "2.21 million"},
        {"the least that fits", "-2,147,483,648$", "minus 2.15 billion dollars"},
        {"rounding carries", "999,999,999", "1 billion"},
        {"below a million exact", "62,331$", "62,331 dollars"},
        {"nine hundred thousand", "999,999", "999,999"},
        {"the sign before", "$1,500,000 and $0", "1.5 million dollars and 0 dollars"},
        {"a share is no group", "11.5%", "11.5 per cent"},
        {"nor with a comma", "-3276800,0%", "minus 3,276,800.0 per cent"},
        {"plain digits", "for 2 months", "for 2 months"},
        {"a hyphen is no minus", "TOP-TEN  BASTARDS", "Top-Ten Bastards"},
        {"spaced letters are a word", " Y O U   A R E   D E A D ! ", "You Are Dead!"},
        {"a dot too many", "Mr.President , fly !", "Mister President, fly!"},
        {"the Agency keeps its name", "attempt from C.I.A !", "attempt from CIA!"},
        {"a name with a digit", "Save/Save3", "Save/Save3"},
        {"a version is no amount", "v.2.1.1", "Version 2.1.1"},
        {"letters of other scripts", "大統領 ÑANDÚ", "大統領 ÑANDÚ"},
        {"nothing", "  ", ""},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Said(each.printed), each.said) << each.why;
    }
    EXPECT_EQ(Said("-15,630,952", Sums::Exact), "minus 15,630,952");
    EXPECT_EQ(SaidChange("5") + SaidChange("-3") + SaidChange("0"), "plus 5minus 3no change");
    EXPECT_EQ(SaidChief("POLICE CHIEF IS GENERAL VOLTA 7/10"),
              "Police Chief Is General Volta, ability 7, ambition 10");
}

// Cut where one would breathe, never within a letter, and nothing lost.
TEST(Wording, BreaksLongLines)
{
    std::string name;
    while (name.size() < 900) {
        name += "大";
    }
    const std::string sentence(80, 'a');
    const std::string texts[] = {sentence + ". " + sentence + ". " + sentence + ".", name,
                                 std::string(400, 'W'), "short", ""};
    for (const std::string& text : texts) {
        std::string joined;
        for (const std::string& line : Lines(text)) {
            EXPECT_LE(line.size(), kLongestLine);
            EXPECT_NE(static_cast<unsigned char>(line.front()) & 0xC0U, 0x80U) << "begins within a letter";
            joined += line;
        }
        std::string whole = text;
        std::erase(joined, ' ');
        std::erase(whole, ' ');
        EXPECT_EQ(joined, whole);
    }
    EXPECT_EQ(Lines(texts[0]).front(), sentence + ". " + sentence + ".");
}

}  // namespace
