// Rules of the proposals: what they are called, and what a yes or a no costs. Nothing is shown here.
#pragma once

#include "core/game_state.h"

#include <cstdint>
#include <string_view>

namespace events {

// What DealCode says. The first five are the ambassador's demands.
enum Proposal : std::int64_t {
    kNoProposal,
    kWarOnHermosita,
    kWarOnFeraz,
    kWarOnDescalza,
    kNavalBase,
    kAirBase,
    kLandownersClaim,
    kIndustrialistsClaim,
};
inline constexpr std::int64_t kDemands = 5;

inline bool IsWar(std::int64_t code)
{
    return code >= kWarOnHermosita && code <= kWarOnDescalza;
}
inline bool IsBase(std::int64_t code)
{
    return code == kNavalBase || code == kAirBase;
}
inline bool IsClaim(std::int64_t code)
{
    return code == kLandownersClaim || code == kIndustrialistsClaim;
}
// Who claims.
inline core::Group Claimant(std::int64_t code)
{
    return code == kLandownersClaim ? core::Landowners : core::Industrialists;
}

// A million and a half for each point of the guerrillas' strength.
std::int64_t DamageOf(const core::GameState& state);

// Applies the answer to DealCode: a demand pleases the Americans by 10 or angers them by 30.
void Accept(core::GameState& state);
void Refuse(core::GameState& state);

inline constexpr std::int64_t kAid = 50'000'000;  // dollars
// Whether the Americans help; then the money has come, and they will not hear of it for twelve months.
bool GrantAid(core::GameState& state);

}  // namespace events
