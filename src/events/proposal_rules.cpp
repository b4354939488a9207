#include "events/proposal_rules.h"

#include "core/numbers.h"

#include <array>

namespace events {

namespace {

constexpr std::int64_t kGratitude = 10;  // American hostility
constexpr std::int64_t kOffence = 30;    // American hostility, or the claimants' opposition
constexpr std::int64_t kAidRefusedAt = 40;
constexpr std::int64_t kAidPause = 12;  // months

// What a foreign base adds to each faction's opposition.
constexpr core::PerFaction<std::int64_t> kBaseAnger = std::to_array<std::int64_t>({5, 4, 3, 2, 1, 10, 2});
constexpr std::int64_t kBaseArmyLoss = 10;  // strength

void DeclareWar(core::GameState& state)
{
    state.ExpState = state.ExpState * 2;
    state.War = state.DealCode;
    state.AmericanHostility -= kGratitude;
}

void GrantBase(core::GameState& state)
{
    state.USBases += 1;
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        state.Opposition[f] += kBaseAnger[f];
    }
    state.Strength[core::Army] -= kBaseArmyLoss;
    state.AmericanHostility -= kGratitude;
}

}  // namespace

std::int64_t DamageOf(const core::GameState& state)
{
    return core::RoundHalfEven(static_cast<double>(std::int64_t{state.Strength[core::Guerrillas]}) * 1.5 *
                               1'000'000);
}

void Accept(core::GameState& state)
{
    if (IsWar(state.DealCode)) {
        DeclareWar(state);
    } else if (IsBase(state.DealCode)) {
        GrantBase(state);
    } else if (IsClaim(state.DealCode)) {
        state.Money -= state.Compensation;
    }
}

void Refuse(core::GameState& state)
{
    if (IsClaim(state.DealCode)) {
        state.Opposition[Claimant(state.DealCode)] += kOffence;
    } else if (state.DealCode != kNoProposal) {
        state.AmericanHostility += kOffence;
    }
}

bool GrantAid(core::GameState& state)
{
    if (state.AmericanHostility >= kAidRefusedAt) {
        return false;
    }
    state.Money += kAid;
    state.AidWait = kAidPause;
    return true;
}

}  // namespace events
