// The presidential actions by their number: the number of the button, of the card and of the ActionDone flag.
#pragma once

#include <cstddef>
#include <cstdint>

namespace core {

enum Action : std::int64_t {
    kCutEducation = 1,
    kRaiseEducation,
    kCutHealth,
    kRaiseHealth,
    kCutAllowances,
    kRaiseAllowances,
    kCutArmyFunds,
    kRaiseArmyFunds,
    kCutPoliceFunds,
    kRaisePoliceFunds,
    kCutUnemployment,
    kRaiseUnemployment,
    kSackPoliceChief,
    kSackArmyChief,
    kSellIsland,
    kRecruitGuards,
    kRunCampaign,
    kAttackGuerrillas,
    kExecutePrisoners,
    kReleasePrisoners,
    kArrestEnemies,
    kCourtAmericans,
    kNoAction,  // its button was never given a place
    kAskForAid,
    kBuyHelicopter,
};
// Those up to here come back every month.
inline constexpr std::size_t kLastMonthlyAction = kNoAction;

}  // namespace core
