#include "instruments/report_rules.h"

#include "core/society.h"

namespace instruments {

namespace {

constexpr std::int64_t kPoliceRefuseAt = 55;     // their opposition
constexpr std::int64_t kPoliceTooWeakAt = 19;    // their strength
constexpr std::int64_t kMayJoinAt = 55;          // opposition
constexpr std::int64_t kMayStartAt = 65;         // opposition
constexpr std::int64_t kOutsidersStrongAt = 12;  // strength
constexpr std::int64_t kAmericansPatience = 70;  // their hostility

}  // namespace

ReportRefusal WhyNoReport(const core::GameState& state)
{
    if (state.PoliceNoInfo == 1) {
        return ReportRefusal::NothingCollected;
    }
    if (state.Opposition[core::Police] >= kPoliceRefuseAt) {
        return ReportRefusal::Unwilling;
    }
    return state.Strength[core::Police] <= kPoliceTooWeakAt ? ReportRefusal::TooWeak : ReportRefusal::None;
}

void CountTheCountry(core::GameState& state)
{
    std::int64_t people = 0;
    for (std::size_t g = 0; g < core::kGroups; ++g) {
        people += state.Population[g];
    }
    state.TotalPopulation = people;
    core::UpdatePopularity(state);
    core::UpdateTotalStrength(state);
    core::UpdateStrengthShares(state);
}

Danger OppositionDanger(std::int64_t opposition)
{
    if (opposition >= kMayStartAt) {
        return Danger::MayStart;
    }
    return opposition >= kMayJoinAt ? Danger::MayJoin : Danger::None;
}

Danger OutsiderDanger(std::int64_t strength)
{
    return strength >= kOutsidersStrongAt ? Danger::Strong : Danger::None;
}

bool AmericansAreDangerous(const core::GameState& state)
{
    return state.AmericanHostility > kAmericansPatience;
}

}  // namespace instruments
