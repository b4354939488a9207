// What the chronicle keeps of a month, and how it tells it.
//
//     rows.push_back(RowOf(state, notes));       // whenever a month is closed
//     LogOf(rows, format)                        // every line, the newest first
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "persist/chronicle.h"
#include "ui/toolkit/graph.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace office {

persist::ChronicleRow RowOf(const core::GameState& state, const std::vector<core::Note>& notes);

struct LogLine {
    std::int64_t month = 0;
    ui::Mark mark = ui::Mark::None;  // of an event that the graph marks as well
    std::string text;
};
// A month in which nothing happened has its line too.
std::vector<LogLine> LogOf(const persist::Chronicle& chronicle, const core::NumberFormat& format);

// One of the small graphs.
enum class Series {
    Popularity,
    Workers,
    Peasants,
    Businessmen,
    Industrialists,
    Guerrillas,
    Landowners,
    Army,
    Police
};
inline constexpr std::size_t kSeries = 9;
std::string_view NameOf(Series series);
// Of the last month that is known; none before that. What the police did not report stays unknown.
std::optional<std::int64_t> LastOf(Series series, const persist::Chronicle& chronicle);
bool IsOverLimit(Series series, std::int64_t value);
ui::Chart ChartOf(Series series, const persist::Chronicle& chronicle);
// "Workers, opposition up from 30 to 58%, at most 71%". Empty without a value.
std::string SaidOf(Series series, const persist::Chronicle& chronicle);

// "The treasury, in millions, from 50 to 5, at least minus 4."
std::string SaidOfMoney(const persist::Chronicle& chronicle);
// Treasury and Swiss account in millions of dollars, with the events above them.
ui::Chart MoneyOf(const persist::Chronicle& chronicle);

}  // namespace office
