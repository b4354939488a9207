#include "events/request_draw.h"

#include <algorithm>
#include <array>

namespace events {

namespace {

// By request: the faction's number.
constexpr std::array<std::int64_t, kRequests + 1> kAskers{0, 1, 1, 1, 2, 3, 4, 5};

core::u8& Done(core::GameState& state, std::int64_t request)
{
    return state.RequestDone[static_cast<std::size_t>(request)];
}

}  // namespace

bool NobodyToRelease(const core::GameState& state)
{
    return state.RequestDraw == kReleaseRequest && state.Population[core::Prisoners] == 0;
}

bool DrawRequest(core::GameState& state, core::Chance& chance)
{
    const auto first = state.RequestDone.begin() + 1;
    if (std::all_of(first, first + kRequests, [](const core::u8& done) { return done == 1; })) {
        std::fill_n(first, kRequests, core::u8{0});
    }
    state.RequestDraw = chance.Draw(static_cast<double>(14 - state.Difficulty), 1);
    if (NobodyToRelease(state)) {
        state.RequestDraw = kNoRequest;
    }
    if (state.RequestDraw < 1 || state.RequestDraw > kRequests) {
        return false;
    }
    while (Done(state, state.RequestDraw) == 1) {
        state.RequestDraw = state.RequestDraw % kRequests + 1;
    }
    Done(state, state.RequestDraw) = 1;
    state.RequestFaction = kAskers[static_cast<std::size_t>(std::int64_t{state.RequestDraw})];
    return true;
}

}  // namespace events
