// Scores, places, sentences, and the file that never loses an entry.
#include "persist/hall_file.h"

#include "support/faulty_system.h"
#include "support/in_child.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using persist::HallEntry;
using testing::HasSubstr;

constexpr const char* kFile = "Data/Top";

// Ten that score 1000, 900, .. 100 points on easy.
persist::HallList Ladder()
{
    persist::HallList hall;
    for (std::size_t i = 0; i < hall.size(); ++i) {
        hall[i].name = "old " + std::to_string(i);
        hall[i].fortune = 100'000'000 - 10'000'000 * static_cast<std::int64_t>(i);
    }
    return hall;
}

TEST(HallOfFame, ScoresByLevel)
{
    struct Case {
        HallEntry entry;
        std::int64_t score;
        const char* shown;
    };
    const Case cases[] = {
        {{.fortune = 0, .months = 10, .assassinations = 1, .level = 1}, 30'000'000, "300"},
        {{.fortune = 1'234'567, .months = 10, .assassinations = 1, .victims = 2500, .level = 1},
         31'481'480,
         "315"},
        {{.fortune = 3, .level = 2}, 4, "0"},  // 4.2
        {{.fortune = 5, .level = 2}, 7, "0"},  // 7 but for the last bit
        {{.fortune = -5'000'000, .level = 0}, -5'000'000, "-50"},
        {{.fortune = 2'147'483'647, .months = 32'767, .assassinations = 255, .revolutions = 255, .level = 2},
         100'109'077'106,
         "1,001,091"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(persist::Score(c.entry), c.score);
        EXPECT_EQ(persist::ShownScore(static_cast<double>(c.score), core::NumberFormat{}), c.shown);
    }
}

TEST(HallOfFame, PlacesANewEntry)
{
    struct Case {
        const char* why;
        std::int64_t fortune;
        bool dead;
        std::size_t place;  // 10: not entered
    };
    const Case cases[] = {
        {"the best", 100'000'001, false, 0},
        {"an equal score goes above the old one", 70'000'000, false, 3},
        {"just below it", 69'999'999, false, 4},
        {"the last", 10'000'000, false, 9},
        {"all ten are better", 9'999'999, false, 10},
        {"the dead count as nothing", 100'000'001, true, 10},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        persist::HallList hall = Ladder();
        persist::Enter(hall, {.name = "new", .fortune = c.fortune}, c.dead);
        std::vector<std::string> expected;
        for (std::size_t i = 0; expected.size() < persist::kHallPlaces; ++i) {
            if (expected.size() == c.place) {
                expected.emplace_back("new");
            } else {
                expected.push_back("old " + std::to_string(i > c.place ? i - 1 : i));
            }
        }
        std::vector<std::string> names;
        for (const HallEntry& entry : hall) {
            names.push_back(entry.name);
        }
        EXPECT_EQ(names, expected);
    }
    persist::HallList poor = Ladder();
    poor[6].fortune = 0;
    persist::Enter(poor, {.name = "new", .fortune = 5'000'000}, true);
    EXPECT_EQ(poor[6].name, "new") << "the first place whose score is nothing";
    EXPECT_EQ(persist::Score(poor[6]), 5'000'000);
}

TEST(HallOfFame, SaysItLetterByLetter)
{
    const HallEntry entry{.name = "Anonymous",
                          .fortune = 1'234'567,
                          .months = 10,
                          .assassinations = 1,
                          .victims = 2'500,
                          .level = 1};
    EXPECT_EQ(
        persist::Sentence(entry, core::NumberFormat{}),
        "President Anonymous made it alive at normal level, with a score of 315 points. He gained a "
        "fortune of 1,234,567, by staying in power for 10 months and encountering 1 assasinations and 0 "
        "revolutions! He has the blood of 2,500 people on his hands!");
    EXPECT_THAT(persist::Sentence({.name = "A", .level = 0}, {}), HasSubstr("at easy level"));
    EXPECT_THAT(persist::Sentence({.name = "A", .level = 2}, {}), HasSubstr("at hard level"));
    EXPECT_THAT(persist::Sentence({.name = std::string(500, 'W')}, {}), HasSubstr("WW… made it alive"));
}

class HallFile : public testing::Test {
protected:
    std::string Enter(const HallEntry& entry)
    {
        return persist::HallFile(files_).Enter(entry, false).trouble;
    }
    persist::HallList ReadBack()
    {
        const auto hall = persist::HallFile(files_).Read();
        EXPECT_TRUE(hall) << hall.Error().Message();
        return hall ? *hall : persist::HallList{};
    }

    test::TemporaryFolder folder_;
    test::FaultySystem system_;
    files::ProgramFolder programFolder_{folder_.Path()};
    files::WrittenFiles files_{programFolder_, system_};
};

TEST_F(HallFile, KeepsItsFormForEver)
{
    const auto shipped = files::ReadWhole(test::Assets() / kFile, kFile);
    folder_.Write(kFile, *shipped);
    const persist::HallList hall = ReadBack();
    EXPECT_EQ(persist::WriteHall(hall), *shipped);
    EXPECT_LT(persist::Score(hall[9]), 20'000'000) << "a first good game gets in";
    EXPECT_TRUE(std::is_sorted(hall.rbegin(), hall.rend(), [](const HallEntry& a, const HallEntry& b) {
        return persist::Score(a) < persist::Score(b);
    }));

    persist::HallList strange = Ladder();
    strange[0] = {"Ñ \"the\r\n, 大\"", -2'147'483'648, -32'768, 255, 255, 2'147'483'647, 2};
    folder_.Write(kFile, persist::WriteHall(strange));
    EXPECT_EQ(persist::WriteHall(ReadBack()), persist::WriteHall(strange));
}

TEST_F(HallFile, IsKeptUnderAnotherNameWhenItCannotBeRead)
{
    const std::string good = persist::WriteHall(Ladder());
    const auto with = [&good](std::string_view what, std::string_view instead) {
        std::string changed = good;
        return changed.replace(changed.find(what), what.size(), instead);
    };
    struct Case {
        const char* why;
        std::string content, told;
    };
    const Case cases[] = {
        {"nothing", "", "expected 70 records, found an empty file"},
        {"short", good.substr(0, good.size() - 3), "line 69: expected 70 records, found 69"},
        {"long", good + "0\r\n", "line 71: expected 70 records, found 71"},
        {"no number", with("100000000", "a lot"), "line 2: expected a whole number from -2147483648"},
        {"no name", with("\"old 1\"", "1"), "line 8: expected a text in quotes for a name, found \"1\""},
        {"no level", with("0\r\n\"old 1\"", "3\r\n\"old 1\""), "line 7: expected a whole number from 0 to 2"},
        {"no text", with("old 2", "\xFF\xFF"), "line 15: expected UTF-8 text"},
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        folder_.Write(kFile, c.content);
        EXPECT_FALSE(persist::HallFile(files_).Read());
        EXPECT_EQ(folder_.Read(kFile), c.content) << "looking at it changed it";
        const std::string aside = "Data/Top.unreadable" + (++number > 1 ? "-" + std::to_string(number) : "");
        EXPECT_THAT(Enter({.name = "Ada", .fortune = 7}),
                    testing::AllOf(HasSubstr(c.told), HasSubstr("It is kept as " + aside)));
        EXPECT_EQ(folder_.Read(aside), c.content);
        EXPECT_EQ(ReadBack()[0].name, "Ada");
    }
}

TEST_F(HallFile, IsNotWrittenOverWhereItCannotBeKeptAside)
{
    folder_.Write(kFile, "broken");
    system_.Plan({.reason = EACCES, .call = "rename to new"});
    EXPECT_THAT(Enter({.name = "Ada"}), HasSubstr("nothing was written"));
    EXPECT_EQ(folder_.Read(kFile), "broken");
}

// A list that cannot be read just now may be in the best order.
TEST_F(HallFile, IsNeitherMovedNorWrittenOverWhenNobodyKnowsWhatIsInIt)
{
    const std::string good = persist::WriteHall(Ladder());
    for (const char* call : {"look", "open", "describe", "read"}) {
        for (const int reason : {EIO, EACCES, EMFILE, ELOOP}) {
            SCOPED_TRACE(std::string(call) + " fails with " + std::to_string(reason));
            folder_.Write(kFile, good);
            system_.Plan({.reason = reason, .call = call});
            EXPECT_THAT(Enter({.name = "Ada", .fortune = 7}),
                        HasSubstr(std::generic_category().message(reason)));
            system_.Plan({});
            EXPECT_EQ(folder_.Read(kFile), good);
            EXPECT_FALSE(folder_.Has("Data/Top.unreadable"));
        }
    }
    const std::string large(files::kLargestFile + 1, '\n');
    folder_.Write(kFile, large);
    EXPECT_THAT(Enter({.name = "Ada"}), HasSubstr("expected at most 1048576 bytes"));
    EXPECT_TRUE(folder_.Read(kFile) == large);
}

TEST_F(HallFile, LosesNoEntryOfGamesThatEndAtTheSameMoment)
{
    for (int round = 0; round < 10; ++round) {
        folder_.Remove("Data");
        std::vector<pid_t> games;
        for (std::int64_t i = 0; i < 10; ++i) {
            games.push_back(test::StartChild([i, this] {
                files::SystemCalls system;
                const files::WrittenFiles own(programFolder_, system);
                const HallEntry entry{.name = "game " + std::to_string(i), .fortune = 1'000'000 + i};
                _exit(persist::HallFile(own).Enter(entry, false).trouble.empty() ? 0 : 1);
            }));
        }
        for (const pid_t game : games) {
            EXPECT_TRUE(test::Ended(game));
        }
        const persist::HallList hall = ReadBack();
        for (std::size_t i = 0; i < hall.size(); ++i) {
            EXPECT_EQ(hall[i].name, "game " + std::to_string(9 - i));
        }
    }
}

}  // namespace
