// Rules of who asks for what.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

#include <cstdint>

namespace events {

inline constexpr std::int64_t kRequests = 7;
inline constexpr std::int64_t kNoRequest = 8;
inline constexpr std::int64_t kReleaseRequest = 3;  // made only while somebody is in prison

// Draws 1 .. 14 on Easy, 13 on Normal, 12 on Hard into RequestDraw; up to 7 it is a request. One that was
// made already gives way to the next that was not; all begin anew when all seven have been made. Returns
// whether somebody asks; then RequestFaction is set and the request counts as made.
bool DrawRequest(core::GameState& state, core::Chance& chance);

// A release can be drawn as the next free request although the prisons are empty.
bool NobodyToRelease(const core::GameState& state);

}  // namespace events
