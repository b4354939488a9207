// What a card does beyond its numbers: the built-in effects of the presidential actions and of the requests.
#pragma once

#include "core/game_state.h"

#include <cstdint>

namespace events {

// The built-in effect of action 1 .. 25; most of those of chiefs and Americans lie elsewhere.
void ApplyActionEffect(std::int64_t action, core::GameState& state);

// The built-in effect of request 1 .. 7.
void ApplyRequestEffect(std::int64_t request, core::GameState& state);

}  // namespace events
