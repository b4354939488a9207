// Saved games come back as they went, and broken ones do not come at all.
#include "persist/saved_game.h"

#include "core/fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using core::Element;
using core::Value;
using testing::HasSubstr;

constexpr const char* kFile = "Save/Save1";

std::vector<std::string> Lines(const std::string& content)
{
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < content.size();) {
        const std::size_t end = content.find("\r\n", at);
        lines.push_back(content.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string content;
    for (const std::string& line : lines) {
        content += line + "\r\n";
    }
    return content;
}

files::Result<core::GameState> Read(const std::string& content, const core::GameState& state)
{
    const auto items = files::ParseItems(content, kFile);
    return items ? persist::ReadSavedGame(*items, kFile, state) : items.Error();
}

// A value of any size that the element takes.
Value RandomValue(const Element& element, std::mt19937& random)
{
    static const std::string kTexts[] = {
        "", "MAJOR", "O'BRIEN \"the ear\"", "two\r\nlines", "Ñandú, señor", "大統領"};
    core::GameState probe;
    const Value now = element.Get(probe);
    if (std::holds_alternative<std::string>(now)) {
        return kTexts[random() % std::size(kTexts)];
    }
    if (std::holds_alternative<float>(now)) {
        const auto percent = static_cast<float>(random() % 2'000'000) / 9973.0F;
        return *files::AsFloat({files::Number(percent)});  // as it passes through the file
    }
    const bool cell = !element.Set(probe, std::monostate{});
    if (cell && random() % 3 == 0) {
        return random() % 2 == 0 ? Value(std::monostate{}) : Value(kTexts[random() % std::size(kTexts)]);
    }
    Value number = std::int64_t{static_cast<std::int32_t>(random())};
    for (const std::int64_t limit : {65536, 256}) {
        if (element.Set(probe, number)) {
            number = static_cast<std::int64_t>(random()) % limit - (limit == 256 ? 0 : limit / 2);
        }
    }
    return number;
}

core::GameState RandomGame(std::mt19937& random)
{
    core::GameState state;
    for (const Element& element : core::AllElements()) {
        const Value value = RandomValue(element, random);
        EXPECT_EQ(element.Set(state, value), std::nullopt) << element.Name();
    }
    return state;
}

TEST(SavedGame, WritesEachKindOfValueInItsForm)
{
    core::GameState state;
    state.Strength[core::Prisoners] = -3;
    state.StrengthPct[core::Workers] = 10.830325F;
    state.PoliceChiefs[0] = {"GENERAL", "DE LA \"O\"", core::i32{9}, std::monostate{}};
    state.PoliceChiefs[1] = {"", "EMPTY", core::i32{0}, core::i32{0}};
    const std::vector<std::string> lines = Lines(persist::WriteSavedGame(state));
    ASSERT_EQ(lines.size(), persist::kSavedRecords);
    EXPECT_EQ(lines[8], "-3");
    EXPECT_EQ(lines[9], "10.83033");
    const std::vector<std::string> chiefs(lines.begin() + 100, lines.begin() + 108);
    EXPECT_THAT(chiefs, testing::ElementsAre("\"GENERAL\"", "\"DE LA \"\"O\"\"\"", "9", "", "\"\"",
                                             "\"EMPTY\"", "0", "0"));
}

TEST(SavedGame, ComesBackFieldByFieldAndTouchesNothingElse)
{
    std::mt19937 random(6);
    for (int i = 0; i < 300; ++i) {
        const core::GameState saved = RandomGame(random);
        const core::GameState running = RandomGame(random);
        core::GameState expected = running;
        for (const Element& element : persist::SavedElements()) {
            ASSERT_EQ(element.Set(expected, element.Get(saved)), std::nullopt);
        }
        const auto loaded = Read(persist::WriteSavedGame(saved), running);
        ASSERT_TRUE(loaded) << loaded.Error().Message();
        ASSERT_EQ(core::FirstDifference(*loaded, expected), "");
    }
}

TEST(SavedGame, ReadsNumbersInAnyNotation)
{
    const core::GameState state;
    std::vector<std::string> lines = Lines(persist::WriteSavedGame(state));
    lines[0] = " 1.2e1 ";
    lines[9] = ".5";
    lines[10] = "1E+01";
    lines[64] = "-2000000000.0";
    const auto loaded = Read(Joined(lines), state);
    ASSERT_TRUE(loaded) << loaded.Error().Message();
    EXPECT_EQ(loaded->Strength[core::Workers], 12);
    EXPECT_EQ(loaded->StrengthPct[core::Workers], 0.5F);
    EXPECT_EQ(loaded->StrengthPct[core::Peasants], 10.0F);
    EXPECT_EQ(loaded->Money, -2'000'000'000);
}

// What no element of this kind can be.
std::vector<std::string> WrongFor(const Element& element)
{
    core::GameState probe;
    if (std::holds_alternative<float>(element.Get(probe))) {
        return {"", "x", "\"1\"", "nan", "inf", "1e99", "1 2", "0x10"};
    }
    if (!element.Set(probe, std::monostate{})) {
        return {"MAJOR", "2147483648", "1.5", "inf", "\"MAJOR\"x", "-"};
    }
    std::vector<std::string> wrong{"", "x", "\"1\"", "0.5", "nan", "--1", "1e40", "99999999999999999999"};
    wrong.push_back(element.Set(probe, Value(std::int64_t{256})) ? "256" : "2147483648");
    if (element.Set(probe, Value(std::int64_t{-1}))) {
        wrong.push_back("-1");
    } else if (element.Set(probe, Value(std::int64_t{40000}))) {
        wrong.push_back("-32769");
    }
    return wrong;
}

struct Broken {
    std::string why;
    std::string content;
    int line;
};

// One thing wrong in each: about two thousand files.
std::vector<Broken> BrokenFiles(const std::string& good)
{
    const std::vector<std::string> lines = Lines(good);
    std::vector<Broken> broken;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const int line = static_cast<int>(i) + 1;
        const std::string& name = persist::SavedElements()[i].Name();
        for (const std::string& wrong : WrongFor(persist::SavedElements()[i])) {
            std::vector<std::string> changed = lines;
            changed[i] = wrong;
            broken.push_back({name + " is " + wrong, Joined(changed), line});
        }
        const std::vector<std::string> first(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(i));
        broken.push_back({"ends before " + name, Joined(first), line - 1});
        std::vector<std::string> bytes = lines;
        bytes[i] += "\xFE";
        broken.push_back({"no text at " + name, Joined(bytes), line});
    }
    broken.push_back({"one record too many", good + "0\r\n", 251});
    broken.push_back({"an empty line behind", good + "\r\n", 251});
    broken.push_back({"a quote that never closes", good.substr(0, good.size() - 3) + "\"0\r\n", 250});
    broken.push_back({"a picture", std::string("BM\x36\xF9\x15\0\0\0", 8) + std::string(5000, '\x80'), 1});
    broken.push_back({"zero bytes", std::string(5000, '\0'), 1});
    return broken;
}

TEST(SavedGame, IsRefusedWithItsLineWhenAnythingIsWrong)
{
    std::mt19937 random(7);
    const core::GameState running = RandomGame(random);
    core::GameState saved;
    saved.PoliceChiefs[0] = {"GENERAL", "VALDORO", core::i32{9}, core::i32{8}};
    const std::vector<Broken> files = BrokenFiles(persist::WriteSavedGame(saved));
    EXPECT_GT(files.size(), 1000U);
    for (const Broken& file : files) {
        const auto loaded = Read(file.content, running);
        ASSERT_FALSE(loaded) << file.why;
        EXPECT_EQ(loaded.Error().line, file.line) << file.why << ": " << loaded.Error().Message();
        EXPECT_THAT(loaded.Error().what, testing::AnyOf(HasSubstr("expected"), HasSubstr("quote")));
        EXPECT_LT(loaded.Error().Message().size(), 200U) << file.why;
    }
    const auto told = Read(Joined({"30", "70000"}), running);
    EXPECT_EQ(told.Error().Message(), "Save/Save1, line 2: expected a whole number from -32768 to 32767 for "
                                      "Strength[Peasants], found \"70000\"");
}

}  // namespace
