// Rules of assassination: who plots, whom the personal army stops, and what it costs to punish.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

#include <cstdint>
#include <string_view>

namespace threats {

struct Plotters {
    std::int64_t strength;       // of their attempt
    double thinning;             // an execution divides the faction's Strength by this
    std::int64_t fewest, most;   // people executed
    std::string_view announced;  // what they are called before ...
    std::string_view executed;   // ... and after
};
// Of the faction with that number, 1 .. 7.
const Plotters& PlottersOf(std::int64_t faction);

// The first faction, Workers to Police, that plots this month, or 0. It must be weak enough (Strength at most
// 29), hate enough (Opposition at least 65) and not be waiting (AssassinWait 0); then it strikes when
// Opposition / 10 is greater than a draw of 6 .. 15.
std::int64_t DrawPlotters(const core::GameState& state, core::Chance& chance);

// The attempt stands in the record, and the faction waits five months before the next.
void BeginAttempt(core::GameState& state, std::int64_t faction);

// Counts the attempt and decides it. With
//     N = Strength[PersonalArmy] x 2.5 - (the attempt's strength + AssassinationAttempts), half to even,
// where the sum in brackets holds at most 255, the president dies when floor(N x r + 1) is 2 or less.
bool AttemptKills(core::GameState& state, core::Chance& chance);

// The faction whose attempt stands in the record, or 0.
std::int64_t FactionThatTried(const core::GameState& state);

// Its Strength is divided (half to even), its leaders die, and the others learn of it. Returns how many died.
std::int64_t ExecutePlotters(core::GameState& state, core::Chance& chance, std::int64_t faction);
void SparePlotters(core::GameState& state, std::int64_t faction);
void ForgetAttempts(core::GameState& state);

// The number of the next attempt's sound, 1 .. 4: none twice until all four were heard.
std::int64_t NextSound(core::GameState& state, core::Chance& chance);

}  // namespace threats
