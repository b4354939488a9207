// Rules of the chiefs: who may be picked, what an appointment does, and when one of them strikes.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

#include <cstdint>

namespace instruments {

// A row whose officer was appointed reads "EMPTY" until both tables are made anew.
bool IsUsed(const core::OfficerRow& row);
std::size_t UsedRows(const core::OfficerTable& table);  // the chief's own row counts, too
// Row 1 .. 10 with an officer in it.
bool IsCandidate(const core::OfficerTable& table, std::size_t row);
bool HasCandidates(const core::OfficerTable& table);

// The candidate becomes the chief in office and leaves an empty row behind.
void Appoint(core::OfficerTable& table, std::size_t row);

// Whether a chief betrays this month. His force must be at least that strong and his ambition 6 or more;
// then he strikes when a draw of 1 .. 17 - ambition - Difficulty gives 1 or 2.
bool ChiefBetrays(const core::GameState& state, core::Chance& chance, const core::OfficerTable& chiefs,
                  core::Group force, std::int64_t strengthNeeded);

}  // namespace instruments
