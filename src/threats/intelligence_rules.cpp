#include "threats/intelligence_rules.h"

#include "core/names.h"
#include "core/thresholds.h"

#include <string_view>

namespace threats {

namespace {

constexpr std::string_view kNoAttempt =
    " Also notice that we will not have any assasination attempts next month!";
constexpr std::string_view kWeakAttempt =
    " Nothing to worry about if you are prepared, but we could have a week assasination attempt next month.";
constexpr std::string_view kStrongAttempt =
    " Watch out because we could have a strong assasination attempt next month!";
constexpr std::string_view kDangerousAttempt =
    " Be carefull, we could have a strong and really dangerous assasination attempt next month!";

// By faction; the last of the possible assassins is the one who is warned of.
constexpr core::PerFactionNumber<std::string_view> kWarnings = std::to_array({
    kNoAttempt,
    kWeakAttempt,
    kWeakAttempt,
    kWeakAttempt,
    kStrongAttempt,
    kStrongAttempt,
    kDangerousAttempt,
    kDangerousAttempt,
});

// The names of the factions marked, "first" before the first and "next" before each other.
std::string Names(const core::PerFactionNumber<bool>& marked, std::string_view first, std::string_view next)
{
    std::string names;
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (marked[n]) {
            names += names.empty() ? first : next;
            names += core::FactionName(static_cast<std::int64_t>(n));
        }
    }
    return names;
}

std::string_view Warning(const core::PerFactionNumber<bool>& assassins)
{
    std::size_t last = 0;
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        last = assassins[n] ? n : last;
    }
    return kWarnings[last];
}

}  // namespace

Forecast Foresee(const core::GameState& state)
{
    Forecast forecast;
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        const std::int64_t opposition = state.Opposition[n - 1];
        const bool strong = state.Strength[n - 1] >= core::kStrongFaction;
        const bool mayRise = state.RevolutionWait[n] == 0;
        forecast.starters[n] = opposition >= core::kWarnedOfStartAt && strong && mayRise;
        forecast.supporters[n] = !forecast.starters[n] && opposition >= core::kWarnedOfJoiningAt && mayRise;
        forecast.assassins[n] = opposition >= core::kPlotsAt && !strong && state.AssassinWait[n] == 0;
    }
    return forecast;
}

std::string ReportOn(const Forecast& forecast)
{
    const std::string starters = Names(forecast.starters, "The ", " or the ");
    const std::string supporters = Names(forecast.supporters, "", " and ");
    std::string report;
    if (starters.empty()) {
        report =
            "There are no parties unhappy or strong enough to start a revolution so don't worry about it. ";
    } else if (supporters.empty()) {
        report =
            starters + " could start a revolution, but there are no other parties willing to support them!";
    } else {
        report = starters + " could start a revolution and if this happens " + supporters + " might join in!";
    }
    return report.append(Warning(forecast.assassins));
}

}  // namespace threats
