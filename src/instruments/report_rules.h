// Rules of the police report: when there is none, what it counts and whom it warns of.
#pragma once

#include "core/game_state.h"

namespace instruments {

enum class ReportRefusal { None, NothingCollected, Unwilling, TooWeak };

// The first reason that holds: the chief gathered nothing this month; the police's opposition is 55 or
// more; their strength is 19 or less.
ReportRefusal WhyNoReport(const core::GameState& state);

// TotalPopulation (here the nine groups alone, without the personal army), Popularity, TotalStrength and
// the shares.
void CountTheCountry(core::GameState& state);

// What a group may do. A faction of opposition 65 and more may begin an uprising, from 55 on it may join
// one; guerrillas and prisoners of strength 12 and more make trouble by themselves.
enum class Danger { None, MayJoin, MayStart, Strong };
Danger OppositionDanger(std::int64_t opposition);
Danger OutsiderDanger(std::int64_t strength);

// Above 70 the Americans send somebody.
bool AmericansAreDangerous(const core::GameState& state);

}  // namespace instruments
