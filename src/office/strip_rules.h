// What the edge of the desk tells: only what the president could read on his screens at this moment.
#pragma once

#include "core/game_state.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace office {

// From the gravest on; NoReport is no danger, but says why others may be missing.
enum class Alarm {
    MayRevolt,  // the report's red: a faction may begin an uprising
    MayJoin,    // its yellow
    Strong,     // guerrillas or prisoners make trouble by themselves
    NoReport,   // the police told nothing, so nothing of theirs is told here
};

struct Warning {
    Alarm alarm{};
    core::Group group{};  // not with NoReport

    bool operator==(const Warning&) const = default;
};

inline constexpr std::size_t kMostWarnings = 3;
// In the warnings' place when there is none.
inline constexpr std::string_view kCalm = "Nobody we know of, Mr.President.";

struct Strip {
    std::int64_t month = 0;
    std::int64_t treasury = 0;           // dollars
    std::int64_t balance = 0;            // of the coming month, dollars
    std::optional<std::int64_t> favour;  // percent, as the report says it; none without a report
    std::vector<Warning> warnings;       // at most three, the gravest first
};

// The guerrillas' strength also stands on the army's map, so that their warning needs no report. Within a degree the
// greater figure comes first, then the order of the report. "No report" keeps the last place.
Strip StripOf(const core::GameState& state);

}  // namespace office
