// The chronicle of a presidency: one row for each month that was closed, and the text in which it is kept.
//
//     const std::string text = persist::PrintChronicle(rows);
//     files::Result<Chronicle> rows = persist::ParseChronicle(items, "Save/Save1.chronicle");
//
// A month is a line of numbers in the order of ChronicleRow; each thing that happened in it follows in a line of its
// own: "battle","Workers",1. tools/chronicle/csv reads the same file.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "files/result.h"
#include "files/text_records.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace persist {

struct ChronicleRow {
    std::int64_t month = 0;
    std::int64_t treasury = 0;    // dollars
    std::int64_t swiss = 0;       // dollars
    std::int64_t balance = 0;     // dollars a month
    std::int64_t popularity = 0;  // percent
    std::int64_t favour = 0;      // of the Americans, percent
    std::int64_t reported = 0;    // 1: the police told what follows
    core::PerGroup<std::int64_t> opposition{};
    core::PerGroup<std::int64_t> strength{};
    std::vector<core::Note> notes{};

    bool operator==(const ChronicleRow&) const = default;
};

using Chronicle = std::deque<ChronicleRow>;  // the oldest month first; an endless one forgets it

std::string PrintChronicle(const Chronicle& chronicle);
files::Result<Chronicle> ParseChronicle(const std::vector<files::Item>& items, std::string_view file);
std::string ChronicleFile(std::string_view savedGame);  // "Save/Save1.chronicle"

}  // namespace persist
