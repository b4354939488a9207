#include "png/png.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string Hex(const std::string& bytes)
{
    std::string text;
    for (const char c : bytes) {
        constexpr const char* kDigits = "0123456789abcdef";
        text += kDigits[static_cast<unsigned char>(c) >> 4U];
        text += kDigits[static_cast<unsigned char>(c) & 15U];
    }
    return text;
}

// Two pixels above each other, red and blue; the bytes were made by another encoder at packing level 0.
TEST(Png, WritesWhatOtherReadersExpect)
{
    EXPECT_EQ(Hex(png::Encode({1, 2, {255, 0, 0, 0, 0, 255}})),
              "89504e470d0a1a0a"
              "0000000d494844520000000100000002080200000016e32170"
              "00000013494441547801010800f7ff00ff0000000000ff080001fff0e28cde"
              "0000000049454e44ae426082");
}

// A block of stored data holds at most 65535 bytes: 21845 pixels and the filter byte are one too many.
TEST(Png, SplitsLongDataIntoBlocks)
{
    const std::string bytes = png::Encode({21845, 1, std::vector<std::uint8_t>(21845 * 3, 7)});
    const std::size_t start = bytes.find("IDAT") + 4 + 2;
    EXPECT_EQ(Hex(bytes.substr(start, 5)), "00ffff0000");
    EXPECT_EQ(Hex(bytes.substr(start + 5 + 65535, 6)), "010100feff07");
}

TEST(Png, TellsWhenItCannotWrite)
{
    const test::TemporaryFolder folder;
    EXPECT_TRUE(png::Write(folder.Path("no/such/folder.png"), {1, 1, {1, 2, 3}}).has_value());
    EXPECT_FALSE(png::Write(folder.Path("here.png"), {1, 1, {1, 2, 3}}).has_value());
    EXPECT_EQ(folder.Read("here.png"), png::Encode({1, 1, {1, 2, 3}}));
}

}  // namespace
