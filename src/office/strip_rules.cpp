#include "office/strip_rules.h"

#include "core/budget.h"
#include "instruments/report_rules.h"

#include <algorithm>
#include <utility>

namespace office {

namespace {

using instruments::Danger;

constexpr Alarm AlarmOf(Danger danger)
{
    return danger == Danger::MayStart  ? Alarm::MayRevolt
           : danger == Danger::MayJoin ? Alarm::MayJoin
                                       : Alarm::Strong;
}

struct Graded {
    Warning warning;
    std::int64_t figure;
};

void AddOutsider(const core::GameState& state, core::Group group, std::vector<Graded>& found)
{
    const std::int64_t strength = state.Strength[group];
    if (instruments::OutsiderDanger(strength) != Danger::None) {
        found.push_back({{Alarm::Strong, group}, strength});
    }
}

}  // namespace

Strip StripOf(const core::GameState& state)
{
    Strip strip{.month = state.MonthsInPower,
                .treasury = state.Money,
                .balance = core::BalanceNow(state),
                .favour = std::nullopt,
                .warnings = {}};
    const bool report = instruments::WhyNoReport(state) == instruments::ReportRefusal::None;
    std::vector<Graded> found;
    if (report) {
        strip.favour = std::min<std::int64_t>(100 - state.AmericanHostility, 100);
        for (std::size_t f = 0; f < core::kFactions; ++f) {
            const std::int64_t opposition = state.Opposition[f];
            if (const Danger danger = instruments::OppositionDanger(opposition); danger != Danger::None) {
                found.push_back({{AlarmOf(danger), static_cast<core::Group>(f)}, opposition});
            }
        }
        AddOutsider(state, core::Prisoners, found);
    }
    AddOutsider(state, core::Guerrillas, found);
    std::stable_sort(found.begin(), found.end(), [](const Graded& a, const Graded& b) {
        return std::pair(a.warning.alarm, -a.figure) < std::pair(b.warning.alarm, -b.figure);
    });
    found.resize(std::min(found.size(), kMostWarnings - (report ? 0 : 1)));
    for (const Graded& each : found) {
        strip.warnings.push_back(each.warning);
    }
    if (!report) {
        strip.warnings.push_back({Alarm::NoReport, {}});
    }
    return strip;
}

}  // namespace office
