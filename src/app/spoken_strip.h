// How the country stands, in the few lines that the voice says on request.
#pragma once

#include "core/game_state.h"

#include <string>
#include <vector>

// Month, treasury, balance of a month as the taxes stand, for how long the treasury covers it, the Americans' favour.
std::vector<std::string> SpokenStrip(const core::GameState& state);
