#include "persist/hall_of_fame.h"

#include "persist/record_errors.h"
#include "text/short_text.h"

#include <algorithm>

namespace persist {

namespace {

constexpr std::int64_t kMonthIsWorth = 2'000'000;
constexpr std::int64_t kAttemptIsWorth = 5'000'000;
constexpr std::int64_t kRevolutionIsWorth = 10'000'000;
constexpr double kShownIn = 100'000;

struct LevelRow {
    double factor;
    std::string_view word;
};
// By core::Level.
constexpr core::PerLevel<LevelRow> kLevels =
    std::to_array<LevelRow>({{1.0, "easy"}, {1.2, "normal"}, {1.4, "hard"}});

// Columns of a name that fit beside "President" in one line of the list, however wide its letters are.
constexpr std::size_t kNameShown = 72;

constexpr std::size_t kRecordsOfEntry = 7;

// Takes one number over; tells what was expected when it is none or does not fit.
template <class T> std::optional<std::string> Take(const files::Item& item, core::Saturated<T>& field,
                                                   std::int64_t min = core::Saturated<T>::kMin,
                                                   std::int64_t max = core::Saturated<T>::kMax)
{
    const std::optional<std::int64_t> number = item.quoted ? std::nullopt : files::AsInteger(item);
    if (!number || *number < min || *number > max) {
        return "a whole number from " + std::to_string(min) + " to " + std::to_string(max);
    }
    field = *number;
    return std::nullopt;
}

// Record number `which` of an entry, 0..6.
std::optional<std::string> TakeRecord(const files::Item& item, std::size_t which, HallEntry& entry)
{
    switch (which) {
    case 0:
        entry.name = item.text;
        return item.quoted ? std::nullopt : std::optional<std::string>("a text in quotes");
    case 1:
        return Take(item, entry.fortune);
    case 2:
        return Take(item, entry.months);
    case 3:
        return Take(item, entry.assassinations);
    case 4:
        return Take(item, entry.revolutions);
    case 5:
        return Take(item, entry.victims);
    default:
        return Take(item, entry.level, core::kEasy, core::kHard);
    }
}

constexpr std::string_view kRecordNames[kRecordsOfEntry] = {
    "a name", "a fortune", "the months", "the assassinations", "the revolutions", "the victims", "a level",
};

}  // namespace

HallEntry EntryOf(const core::GameState& state)
{
    return {
        .name = state.PlayerName,
        .fortune = state.SwissBank,
        .months = state.MonthsInPower,
        .assassinations = state.AssassinationAttempts,
        .revolutions = state.Revolutions,
        .victims = state.Victims,
        .level = static_cast<std::int64_t>(core::LevelIndex(state.Difficulty)),
    };
}

std::int64_t PlainScore(const HallEntry& entry)
{
    return entry.fortune + kMonthIsWorth * entry.months + kAttemptIsWorth * entry.assassinations +
           kRevolutionIsWorth * entry.revolutions;
}

double LevelFactor(std::int64_t level)
{
    return kLevels[core::LevelIndex(level)].factor;
}

std::int64_t Score(const HallEntry& entry)
{
    return core::RoundHalfEven(LevelFactor(entry.level) * static_cast<double>(PlainScore(entry)));
}

std::string ShownScore(double score, const core::NumberFormat& format)
{
    return format.Amount(score / kShownIn);
}

std::optional<std::size_t> Enter(HallList& hall, const HallEntry& entry, bool dead)
{
    const std::int64_t score = dead ? 0 : Score(entry);
    const auto place =
        std::find_if(hall.begin(), hall.end(), [score](const HallEntry& e) { return score >= Score(e); });
    if (place == hall.end()) {
        return std::nullopt;
    }
    std::move_backward(place, hall.end() - 1, hall.end());
    *place = entry;
    return static_cast<std::size_t>(place - hall.begin());
}

std::string Sentence(const HallEntry& entry, const core::NumberFormat& format)
{
    return "President " + text::Shortened(entry.name, kNameShown) + " made it alive at " +
           std::string(kLevels[core::LevelIndex(entry.level)].word) + " level, with a score of " +
           ShownScore(static_cast<double>(Score(entry)), format) + " points. He gained a fortune of " +
           format.Amount(std::int64_t{entry.fortune}) + ", by staying in power for " +
           core::Digits(entry.months) + " months and encountering " + core::Digits(entry.assassinations) +
           " assasinations and " + core::Digits(entry.revolutions) + " revolutions! He has the blood of " +
           format.Amount(std::int64_t{entry.victims}) + " people on his hands!";
}

std::string WriteHall(const HallList& hall)
{
    std::string content;
    for (const HallEntry& entry : hall) {
        content += files::Text(entry.name);
        content += files::kLineEnd;
        for (const std::int64_t number :
             {std::int64_t{entry.fortune}, std::int64_t{entry.months}, std::int64_t{entry.assassinations},
              std::int64_t{entry.revolutions}, std::int64_t{entry.victims}, std::int64_t{entry.level}}) {
            content += core::Digits(number);
            content += files::kLineEnd;
        }
    }
    return content;
}

files::Result<HallList> ReadHall(const std::vector<files::Item>& items, std::string_view file)
{
    HallList hall;
    for (std::size_t i = 0; i < std::min(items.size(), kHallPlaces * kRecordsOfEntry); ++i) {
        const std::size_t which = i % kRecordsOfEntry;
        if (const auto expected = TakeRecord(items[i], which, hall[i / kRecordsOfEntry])) {
            return Unexpected(file, items[i], kRecordNames[which], *expected);
        }
    }
    if (std::optional<files::FileError> wrong = WrongCount(file, items, kHallPlaces * kRecordsOfEntry)) {
        return *wrong;
    }
    return hall;
}

HallList FreshHall()
{
    HallList hall;
    hall.fill({.name = "Nobody"});
    return hall;
}

}  // namespace persist
