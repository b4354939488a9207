#include "office/chronicle_rules.h"

#include "core/budget.h"
#include "core/names.h"
#include "core/thresholds.h"
#include "instruments/report_rules.h"
#include "office/telling.h"
#include "ui/look/look.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace office {

namespace {

using core::Kind;
using persist::Chronicle;
using persist::ChronicleRow;

constexpr double kMillion = 1'000'000;
constexpr std::int64_t kWhole = 100;  // percent

ui::Mark MarkOf(Kind kind)
{
    switch (kind) {
    case Kind::Revolution:
    case Kind::Revolt:
    case Kind::Coup:
        return ui::Mark::Flame;
    case Kind::Attempt:
    case Kind::Survived:
        return ui::Mark::Sight;
    case Kind::WarBegins:
    case Kind::War:
        return ui::Mark::Sabres;
    case Kind::Disaster:
        return ui::Mark::Bolt;
    default:
        return ui::Mark::None;
    }
}

// How a small graph is drawn: its group (none for the popularity), its upper end and its limits.
struct Drawn {
    core::Group group;
    double high;
    bool factions;  // the limits of a faction's opposition, and percent
};
constexpr double kPercent = 100;
constexpr double kStrengthShown = 20;
// By Series.
constexpr auto kDrawn = std::to_array<Drawn>({
    {core::PersonalArmy, kPercent, false},
    {core::Workers, kPercent, true},
    {core::Peasants, kPercent, true},
    {core::Businessmen, kPercent, true},
    {core::Industrialists, kPercent, true},
    {core::Guerrillas, kStrengthShown, false},
    {core::Landowners, kPercent, true},
    {core::Army, kPercent, true},
    {core::Police, kPercent, true},
});
static_assert(kDrawn.size() == kSeries);

const Drawn& RowOf(Series series)
{
    return kDrawn.at(static_cast<std::size_t>(series));
}

// As the report bounds them. The guerrillas' strength also stands on the army's map; everything else is the police's to tell.
std::optional<std::int64_t> ValueOf(Series series, const ChronicleRow& row)
{
    if (series == Series::Guerrillas) {
        return row.strength[core::Guerrillas];
    }
    if (row.reported == 0) {
        return std::nullopt;
    }
    const std::int64_t value =
        series == Series::Popularity ? row.popularity : row.opposition.at(RowOf(series).group);
    return std::clamp<std::int64_t>(value, 0, kWhole);
}

std::vector<std::optional<double>> ValuesOf(Series series, const Chronicle& chronicle)
{
    std::vector<std::optional<double>> values;
    for (const ChronicleRow& row : chronicle) {
        const std::optional<std::int64_t> value = ValueOf(series, row);
        values.push_back(value ? std::optional(static_cast<double>(*value)) : std::nullopt);
    }
    return values;
}

std::vector<std::optional<double>> Millions(const Chronicle& chronicle, std::int64_t ChronicleRow::*field)
{
    std::vector<std::optional<double>> values;
    values.reserve(chronicle.size());
    for (const ChronicleRow& row : chronicle) {
        values.emplace_back(static_cast<double>(row.*field) / kMillion);
    }
    return values;
}

// Away from zero to a multiple of ten, so that the scale stands still while the money moves.
double RoundedOut(double value)
{
    constexpr double kStep = 10;
    return std::copysign(std::ceil(std::abs(value) / kStep) * kStep, value);
}

}  // namespace

persist::ChronicleRow RowOf(const core::GameState& state, const std::vector<core::Note>& notes)
{
    const bool reported = instruments::WhyNoReport(state) == instruments::ReportRefusal::None;
    ChronicleRow row{.month = state.MonthsInPower,
                     .treasury = state.Money,
                     .swiss = state.SwissBank,
                     .balance = core::BalanceNow(state),
                     .popularity = state.Popularity,
                     .favour = kWhole - state.AmericanHostility,
                     .reported = reported ? 1 : 0,
                     .notes = notes};
    for (std::size_t group = 0; group < core::kGroups; ++group) {
        row.opposition[group] = state.Opposition[group];
        row.strength[group] = state.Strength[group];
    }
    return row;
}

std::vector<LogLine> LogOf(const Chronicle& chronicle, const core::NumberFormat& format)
{
    std::vector<LogLine> log;
    for (auto row = chronicle.rbegin(); row != chronicle.rend(); ++row) {
        const std::size_t before = log.size();
        for (std::size_t i = 0; i < row->notes.size(); ++i) {
            const core::Note& note = row->notes[i];
            std::optional<std::string> told =
                note.kind == Kind::Action ? ToldAction(note.amount) : Told(row->notes, i, format);
            if (told) {
                log.push_back({row->month, MarkOf(note.kind), std::move(*told)});
            }
        }
        if (log.size() == before) {
            log.push_back({row->month, ui::Mark::None, QuietLine(row->month)});
        }
        std::reverse(log.begin() + static_cast<std::ptrdiff_t>(before), log.end());
    }
    return log;
}

std::string_view NameOf(Series series)
{
    return series == Series::Popularity ? "Popularity" : core::kGroupNames.at(RowOf(series).group);
}

std::optional<std::int64_t> LastOf(Series series, const Chronicle& chronicle)
{
    for (auto row = chronicle.rbegin(); row != chronicle.rend(); ++row) {
        if (const std::optional<std::int64_t> value = ValueOf(series, *row)) {
            return value;
        }
    }
    return std::nullopt;
}

bool IsOverLimit(Series series, std::int64_t value)
{
    return RowOf(series).factions ? value >= core::kStartsRevolutionAt
                                  : series == Series::Guerrillas && value >= core::kGuerrillasRaidAt;
}

ui::Chart ChartOf(Series series, const Chronicle& chronicle)
{
    ui::Chart chart{.high = RowOf(series).high,
                    .curves = {{.values = ValuesOf(series, chronicle), .color = look::kInk}}};
    if (RowOf(series).factions) {
        chart.limits = {{core::kJoinsRevolutionAt, true}, {core::kStartsRevolutionAt, false}};
    } else if (series == Series::Guerrillas) {
        chart.limits = {{core::kGuerrillasRaidAt, false}};
    }
    return chart;
}

std::string SaidOf(Series series, const Chronicle& chronicle)
{
    std::optional<std::int64_t> first;
    std::optional<std::int64_t> most;
    std::int64_t least = 0;
    for (const ChronicleRow& row : chronicle) {
        if (const std::optional<std::int64_t> value = ValueOf(series, row)) {
            least = std::min(first ? least : *value, *value);
            first = first.value_or(*value);
            most = std::max(most.value_or(*value), *value);
        }
    }
    if (!first) {
        return {};
    }
    const std::string_view unit = series == Series::Guerrillas ? "" : "%";
    std::string said(NameOf(series));
    said += series == Series::Popularity ? ", " : RowOf(series).factions ? ", opposition " : ", strength ";
    const std::int64_t last = *LastOf(series, chronicle);
    if (least == *most) {
        return said + core::Digits(last) + std::string(unit) + " all the time";
    }
    said += last > *first ? "up from " : last < *first ? "down from " : "again from ";
    said += core::Digits(*first) + " to " + core::Digits(last) + std::string(unit);
    return *most > std::max(*first, last) ? said + ", at most " + core::Digits(*most) + std::string(unit)
                                          : said;
}

std::string SaidOfMoney(const Chronicle& chronicle)
{
    if (chronicle.empty()) {
        return {};
    }
    const auto millions = [](std::int64_t dollars) {
        return core::Digits(core::RoundHalfEven(static_cast<double>(dollars) / kMillion));
    };
    const auto least = std::min_element(chronicle.begin(), chronicle.end(),
                                        [](const auto& a, const auto& b) { return a.treasury < b.treasury; });
    return "The treasury in millions of dollars, from " + millions(chronicle.front().treasury) + " to " +
           millions(chronicle.back().treasury) + ", at least " + millions(least->treasury);
}

ui::Chart MoneyOf(const Chronicle& chronicle)
{
    ui::Chart chart{.low = 0, .high = kStrengthShown / 2};
    chart.curves = {
        {.values = Millions(chronicle, &ChronicleRow::treasury), .color = look::kTeal, .hatched = true},
        {.values = Millions(chronicle, &ChronicleRow::swiss), .color = look::kInk, .dashed = true}};
    for (const ui::Curve& curve : chart.curves) {
        for (const std::optional<double>& value : curve.values) {
            chart.low = std::min(chart.low, RoundedOut(*value));
            chart.high = std::max(chart.high, RoundedOut(*value));
        }
    }
    for (std::size_t i = 0; i < chronicle.size(); ++i) {
        for (const core::Note& note : chronicle[i].notes) {
            if (MarkOf(note.kind) != ui::Mark::None) {
                chart.events.push_back({i, MarkOf(note.kind)});
                break;
            }
        }
    }
    return chart;
}

}  // namespace office
