#include "instruments/report_rules.h"

#include "core/society.h"
#include "core/thresholds.h"

namespace instruments {

namespace {

constexpr std::int64_t kPoliceRefuseAt = 55;   // their opposition
constexpr std::int64_t kPoliceTooWeakAt = 19;  // their strength
constexpr std::int64_t kOutsidersStrongAt = core::kPrisonersRiseAt;
static_assert(kOutsidersStrongAt == core::kGuerrillasRaidAt);

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
    if (opposition >= core::kWarnedOfStartAt) {
        return Danger::MayStart;
    }
    return opposition >= core::kWarnedOfJoiningAt ? Danger::MayJoin : Danger::None;
}

Danger OutsiderDanger(std::int64_t strength)
{
    return strength >= kOutsidersStrongAt ? Danger::Strong : Danger::None;
}

bool AmericansAreDangerous(const core::GameState& state)
{
    return state.AmericanHostility >= core::kAmericansStrikeAt;
}

}  // namespace instruments
