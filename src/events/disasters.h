// Rules of what happens to everybody at once: disasters, and the one piece of good news.
#pragma once

#include "core/game_state.h"

#include <cstddef>

namespace events {

// What disaster 1 .. 3 does to the taxed factions' incomes and to their numbers.
void ApplyDisaster(std::size_t disaster, core::GameState& state);

// The people gather round the president.
void ApplyGoodNews(core::GameState& state);

}  // namespace events
