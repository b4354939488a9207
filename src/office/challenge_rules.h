// The challenges: what a president may set himself to do besides getting away with it.
//
//     const std::vector<Challenge> met = ChallengesMet(state, chronicle, notesOfThisMonth);
//     StampOf(met)                               // "Stamped: Only the police, At peace"; empty for none
//
// They are judged by what the chronicle and the journal noted. A presidency of which months are missing is not judged:
// nobody knows what happened in them.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "persist/chronicle.h"

#include <string>
#include <string_view>
#include <vector>

namespace office {

// The hardest first.
enum class Challenge {
    HardAndHonest,  // hard level, and nothing was ever carried to Switzerland
    OnlyPolice,     // in every uprising that was fought the Police were asked, and in one at least
    Unbought,       // no base, no dollar and no kiss
    NeverSaidNo,    // every request was granted, kFewestRequests at least
    AtPeace,        // no war, and no campaign in the mountains
    CleanHands,     // nobody was executed by his order, neither prisoners nor plotters
    OnFoot,         // left without the helicopter
    Undivided,      // no island was sold
};
inline constexpr std::size_t kChallenges = 8;
std::string_view NameOf(Challenge challenge);  // "Only the police"

inline constexpr std::int64_t kFewestMonths = 12;
inline constexpr std::size_t kFewestRequests = 5;

// At the end of a game, the notes with it. Only he is judged who got away alive, in month kFewestMonths or later.
std::vector<Challenge> ChallengesMet(const core::GameState& state, const persist::Chronicle& closed,
                                     const std::vector<core::Note>& sinceThen);

// For the hall's foot: the two hardest, and how many more.
std::string StampOf(const std::vector<Challenge>& met);

}  // namespace office
