// What the secretary writes down when a month is closed.
//
//     const Standing before = StandingOf(state);       // when the last month was closed
//     const Standing after = StandingOf(state);
//     Change(before, after, row)                       // none where one of the two was not reported
//     Happenings(notes, before, after)                 // at most two lines
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace office {

// The seven factions' opposition in percent, then the guerrillas' strength, which the army's map tells as well.
inline constexpr std::size_t kStandingRows = core::kFactions + 1;
inline constexpr std::size_t kGuerrillaRow = core::kFactions;

struct Standing {
    std::int64_t month = 0;
    std::int64_t treasury = 0;  // dollars
    std::int64_t balance = 0;   // dollars a month
    bool reported = false;      // whether the police would tell
    std::array<std::int64_t, kStandingRows> figures{};
    std::int64_t inTheMountains = 0;  // people
};

Standing StandingOf(const core::GameState& state);

// As the report bounds them; none when it is not told.
std::optional<std::int64_t> Figure(const Standing& standing, std::size_t row);
std::optional<std::int64_t> Change(const Standing& before, const Standing& after, std::size_t row);

// What happened, each in one line of at most 62 letters, the latest two; a quiet month has its line as well.
inline constexpr std::size_t kMostHappenings = 2;
std::vector<std::string> Happenings(const std::vector<core::Note>& notes, const Standing& before,
                                    const Standing& after, const core::NumberFormat& format);

}  // namespace office
