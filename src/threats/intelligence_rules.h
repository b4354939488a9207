// What the intelligence service foresees: who could rise and who could kill, without any draw.
//
// Its thresholds for a revolution lie one point below those at which one really starts: it reports 65 and 55.
#pragma once

#include "core/game_state.h"

#include <array>
#include <string>

namespace threats {

struct Forecast {
    core::PerFactionNumber<bool> starters{};    // Opposition >= 65, Strength >= 30, no RevolutionWait
    core::PerFactionNumber<bool> supporters{};  // no starter, Opposition >= 55, no RevolutionWait
    core::PerFactionNumber<bool> assassins{};   // Opposition >= 65, Strength <= 29, no AssassinWait
};
Forecast Foresee(const core::GameState& state);

// The report's paragraph.
std::string ReportOn(const Forecast& forecast);

}  // namespace threats
