// Rules of when a presidential action cannot be taken, and what the player is told then.
#pragma once

#include "core/game_state.h"

#include <cstdint>
#include <optional>
#include <string>

namespace instruments {

using ActionRefusal = std::optional<std::string>;

// The situation forbids the action: the army is busy, the islands are gone. ActionChoice stays as it was.
ActionRefusal RefusedBySituation(const core::GameState& state, std::int64_t action);

// It was taken already, or too recently. The actions 1 .. 23 come back every month.
ActionRefusal RefusedAsDone(const core::GameState& state, std::int64_t action);

}  // namespace instruments
