// Rules of the month's random event: one draw decides (10 numbers on Easy, 9 on Normal, 8 on Hard):
//
//     1     a disaster, each once a game; when all have been, a demand
//     2     a demand of the ambassador, each once a game; when all have been, damage by the guerrillas
//     3, 4  damage by the guerrillas, from a strength of 12 on
//     5     a chief is gone
//     6     good news, once a game
//     else  nothing
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "events/proposal_rules.h"

#include <cstddef>
#include <cstdint>

namespace events {

inline constexpr std::size_t kDisasters = 3;
inline constexpr std::size_t kChiefStories = 6;  // 1 .. 3 the army's, 4 .. 6 the police's
inline constexpr std::size_t kRaids = 3;
inline constexpr std::int64_t kStateDamage = 15'000'000;  // dollars that a raid on the state costs

// What NewsKind says: who has to be replaced when the newspaper is closed.
enum NewsKind : std::int64_t { kPlainNews = 0, kArmyChiefGone = 1, kPoliceChiefGone = 2 };

struct Event {
    enum class Kind { None, ChiefGone, Disaster, Demand, Raid, GoodNews };
    Kind kind = Kind::None;
    std::size_t number = 0;  // 1 .. 6 the chief's story, 1 .. 3 the disaster or raid, 1 .. 5 the demand
};

// Draws the month's event and applies what it does to the country; EventDraw tells how far the draw cascaded. A
// raid sets Compensation, and DealCode where somebody claims it: of raid 3 the state pays kStateDamage itself.
Event DrawEvent(core::GameState& state, core::Chance& chance);

// Who claims the damage of raid 1 .. 3.
Proposal ClaimOf(std::size_t raid);

}  // namespace events
