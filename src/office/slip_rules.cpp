#include "office/slip_rules.h"

#include "core/budget.h"
#include "instruments/report_rules.h"
#include "office/telling.h"

#include <algorithm>

namespace office {

Standing StandingOf(const core::GameState& state)
{
    Standing standing{.month = state.MonthsInPower,
                      .treasury = state.Money,
                      .balance = core::BalanceNow(state),
                      .reported = instruments::WhyNoReport(state) == instruments::ReportRefusal::None,
                      .figures = {},
                      .inTheMountains = state.Population[core::Guerrillas]};
    for (std::size_t f = 0; f < core::kFactions; ++f) {
        standing.figures[f] = std::clamp<std::int64_t>(state.Opposition[f], 0, 100);
    }
    standing.figures[kGuerrillaRow] = state.Strength[core::Guerrillas];
    return standing;
}

std::optional<std::int64_t> Figure(const Standing& standing, std::size_t row)
{
    return standing.reported || row == kGuerrillaRow ? std::optional(standing.figures.at(row)) : std::nullopt;
}

std::optional<std::int64_t> Change(const Standing& before, const Standing& after, std::size_t row)
{
    const std::optional<std::int64_t> was = Figure(before, row);
    const std::optional<std::int64_t> is = Figure(after, row);
    return was && is ? std::optional(*is - *was) : std::nullopt;
}

std::vector<std::string> Happenings(const std::vector<core::Note>& notes, const Standing& before,
                                    const Standing& after, const core::NumberFormat& format)
{
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < notes.size(); ++i) {
        if (std::optional<std::string> line = Told(notes, i, format)) {
            lines.push_back(std::move(*line));
        }
    }
    const bool quiet = lines.empty();
    const std::int64_t fled = after.inTheMountains - before.inTheMountains;
    if (fled > 0 && before.reported && after.reported) {
        lines.insert(lines.begin(),
                     format.Amount(fled) + " people have moved to the mountains, for the air.");
    }
    if (quiet) {
        lines.push_back(QuietLine(after.month));
    }
    if (lines.size() > kMostHappenings) {
        lines.erase(lines.begin(), lines.end() - static_cast<std::ptrdiff_t>(kMostHappenings));
    }
    return lines;
}

}  // namespace office
