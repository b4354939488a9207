// Long runs in one process.
#pragma once

namespace monkey {

// Whole games one after the other, by a monkey who governs. Returns 0, or 1 when a promise broke.
int PlayGames(int games);

// Every field at both its limits, and then so many events. Returns 0, or 1.
int TryLimits(int steps);

// Memory and open files while months and new games pass. Returns 0 when they stay where they were, else 1.
int WatchMemory(int months, int starts);

}  // namespace monkey
