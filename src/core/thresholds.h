// From where on somebody becomes dangerous. The rule that acts and the report that warns read the same limit.
#pragma once

#include <cstdint>

namespace core {

// Strength.
inline constexpr std::int64_t kPrisonersRiseAt = 12;
inline constexpr std::int64_t kGuerrillasRiseAt = 15;
inline constexpr std::int64_t kGuerrillasRaidAt = 12;
inline constexpr std::int64_t kStrongFaction = 30;  // starts a revolution; a weaker one sends an assassin

// Opposition of a faction. Police and intelligence warn one point early.
inline constexpr std::int64_t kStartsRevolutionAt = 66;
inline constexpr std::int64_t kJoinsRevolutionAt = 56;
inline constexpr std::int64_t kPlotsAt = 65;
inline constexpr std::int64_t kWarnedOfStartAt = kStartsRevolutionAt - 1;
inline constexpr std::int64_t kWarnedOfJoiningAt = kJoinsRevolutionAt - 1;

// Hostility.
inline constexpr std::int64_t kAmericansStrikeAt = 71;

}  // namespace core
