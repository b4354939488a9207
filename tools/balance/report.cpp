#include "balance/report.h"

#include "balance/targets.h"
#include "core/names.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <functional>
#include <sstream>

namespace balance {

namespace {

constexpr std::array kLevels{"Easy", "Normal", "Hard"};
constexpr std::array kLinks{"C.I.A.",     "war",       "prisoners",  "guerrillas", "coup",
                            "revolution", "attempt",   "chief gone", "disaster",   "demand",
                            "damage",     "good news", "quiet"};
constexpr std::array kEndings{"",         "escaped", "executed", "basement",
                              "assassin", "C.I.A.",  "bankrupt", "went on"};

std::string Percent(double share)
{
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%.1f %%", share * 100);
    return text.data();
}

std::string Short(double value, bool percent)
{
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "%.4g%s", percent ? value * 100 : value, percent ? " %" : "");
    return text.data();
}

std::string Wanted(const Target& target, std::size_t level)
{
    const double least = target.least[level];
    const double most = target.most[level];
    if (most > 1e6) {
        return least > 0 ? "at least " + Short(least, target.percent) : "any";
    }
    return least <= 0 ? "at most " + Short(most, target.percent)
                      : Short(least, target.percent) + " to " + Short(most, target.percent);
}

void WriteTargets(std::ostream& out, const std::vector<Target>& targets)
{
    out << "| target | Easy | Normal | Hard |\n|---|---|---|---|\n";
    for (const Target& target : targets) {
        out << "| " << target.what << " |";
        for (std::size_t level = 0; level < target.value.size(); ++level) {
            out << ' ' << Short(target.value[level], target.percent) << ", "
                << (target.Met(level) ? "met" : "**not met**") << " (" << Wanted(target, level) << ") |";
        }
        out << '\n';
    }
}

void WriteEnds(std::ostream& out, const std::vector<Sample>& samples)
{
    out << "| bot | level | games | months (quartiles) | longest | points, mean | median | alive |";
    for (std::size_t e = 2; e < kEndings.size(); ++e) {
        out << ' ' << kEndings[e] << " |";
    }
    out << "\n|---|---|---|---|---|---|---|---|---|---|---|---|---|---|\n";
    for (const Sample& s : samples) {
        out << "| " << s.bot << " | " << kLevels.at(static_cast<std::size_t>(s.level)) << " | "
            << s.games.size() << " | " << s.MonthsAt(0.5) << " (" << s.MonthsAt(0.25) << " to "
            << s.MonthsAt(0.75) << ") | " << s.MonthsAt(1) << " | " << std::lround(s.MeanPoints()) << " | "
            << s.PointsAt(0.5) << " | " << Percent(s.Ends(Ending::Escaped)) << " |";
        for (std::size_t e = 2; e < kEndings.size(); ++e) {
            out << ' ' << Percent(s.Ends(static_cast<Ending>(e))) << " |";
        }
        out << '\n';
    }
}

using Count = std::function<int(const Tally&, std::size_t row)>;
enum class Per { Month, Game };

// How often something comes up with those who govern: the share of their months, or of their games.
void WriteShares(std::ostream& out, const std::vector<Sample>& samples, const std::vector<std::string>& rows,
                 Per per, const Count& count)
{
    std::vector<const Sample*> shown;
    out << "| |";
    for (const Sample& s : samples) {
        if (s.bot == "careful" || s.bot == "skilled" || s.bot == "cunning") {
            shown.push_back(&s);
            out << ' ' << s.bot << ", " << kLevels.at(static_cast<std::size_t>(s.level)) << " |";
        }
    }
    out << "\n|---|";
    for (std::size_t i = 0; i < shown.size(); ++i) {
        out << "---|";
    }
    out << '\n';
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].empty()) {
            continue;
        }
        out << "| " << rows[row] << " |";
        for (const Sample* s : shown) {
            double hits = 0;
            for (const Record& game : s->games) {
                const int found = count(game.tally, row);
                hits += per == Per::Month ? found : found > 0 ? 1 : 0;
            }
            const double all = per == Per::Month ? s->Months() : static_cast<double>(s->games.size());
            out << ' ' << Percent(all > 0 ? hits / all : 0) << " |";
        }
        out << '\n';
    }
}

std::vector<std::string> Numbered(std::string_view prefix, std::size_t count)
{
    std::vector<std::string> names{""};
    while (names.size() < count) {
        names.push_back(std::string(prefix) + std::to_string(names.size()));
    }
    return names;
}

// What the cards alone do not reach; the figures stand above it.
constexpr std::string_view kWhyNot =
    "\nWhere a target is not met the rules hold against the cards:\n\n"
    "- The Workers and the Peasants grow angrier by two points a month, whoever governs. A campaign is the "
    "remedy for "
    "both, so whoever stays signs it in most months: one point less on its card, and nobody signs it, nor "
    "stays; one "
    "more, and every month has one.\n"
    "- An island is worth 150 million dollars by rule. At 25 points of the Americans' hostility it can be "
    "sold once "
    "in a presidency that leaves early, and that ended the tricks; dearer, and it would be a button that "
    "kills.\n"
    "- The Army begins with a strength of 70, the others with 22 to 40: who has kept it calm calls it. The "
    "rarest "
    "allies fight in fewer than a hundredth of skilled games, which see few fights at all.\n"
    "- On Hard six of eight lots are news, so that few months can be calm; on Normal it is six of nine.\n"
    "- Prisoners rise after twelve months of neglect and the C.I.A. comes at a favour that the strip warns "
    "of: skilled "
    "presidents see neither. The basement and the C.I.A. end the games of those who do not read.\n";

void WriteBans(std::ostream& out, const std::vector<Ban>& bans)
{
    out << "| without action | points | noise |\n|---|---|---|\n";
    for (const Ban& ban : bans) {
        out << "| " << ban.action << " | " << Percent(ban.change) << " | " << Percent(ban.noise) << " |\n";
    }
}

void WriteHead(std::ostream& out, const std::vector<Sample>& samples, const Orders& orders)
{
    out << "# Balance\n\nWritten by `quenvale-balance` (tools/balance), which plays on the game's own "
           "screens: "
        << orders.games << " games a bot and level, fewer of the dear ones, seed " << orders.seed
        << ". The same words give the same page: do not edit it.\n\nThe dead have no points in the hall; "
           "their games "
           "count as 0. `careful` keeps the peace as the handbook advises, `skilled` also saves and leaves "
           "by plan, "
           "`cunning` copies the game, lives some futures under each of several plans and takes the best; "
           "the others "
           "are tricks that somebody found, and stay as guards.\n";
    if (const Sample* idle = Find(samples, "idle", core::kNormal)) {
        out << "\nThe bots play " << static_cast<long>(idle->monthsPerSecond / 1000)
            << ",000 (idle) to some 10,000 months a second on one core.\n";
    }
}

}  // namespace

std::string Ends(const std::vector<Sample>& samples)
{
    std::ostringstream out;
    WriteEnds(out, samples);
    for (const Sample& s : samples) {
        out << s.bot << ' ' << kLevels.at(static_cast<std::size_t>(s.level)) << ": "
            << static_cast<long>(s.monthsPerSecond) << " months a second and core\n";
    }
    return out.str();
}

std::string Page(const std::vector<Sample>& samples, const std::vector<Ban>& bans, const Orders& orders)
{
    std::ostringstream out;
    WriteHead(out, samples, orders);
    out << "\n## Targets\n\n";
    WriteTargets(out, Targets(samples, bans));
    out << kWhyNot;
    out << "\n## Months, points, "
           "endings\n\n![Months](balance/months.svg)\n\n![Points](balance/points.svg)\n\n";
    WriteEnds(out, samples);
    out << "\n## The treasury and the angriest faction\n\n![Treasury](balance/treasury.svg)\n\n"
           "![Angriest faction](balance/angriest.svg)\n";
    out << "\n## What a month brings\n\nShare of the months.\n\n";
    WriteShares(out, samples, {kLinks.begin(), kLinks.end()}, Per::Month,
                [](const Tally& t, std::size_t row) { return t.links.at(row); });
    WriteShares(out, samples, {"calm: nothing happened, nothing was red"}, Per::Month,
                [](const Tally& t, std::size_t) { return t.calm; });
    WriteShares(out, samples, {"a newspaper page seen before"}, Per::Month,
                [](const Tally& t, std::size_t) { return t.repeatedPages; });
    out << "\n## Actions\n\nShare of the months in which each was signed.\n\n";
    WriteShares(out, samples, Numbered("", kActions), Per::Month,
                [](const Tally& t, std::size_t row) { return t.actions.at(row); });
    out << "\n## Requests\n\nShare of the games in which each was made.\n\n";
    WriteShares(out, samples, Numbered("M", core::kFactions + 1), Per::Game,
                [](const Tally& t, std::size_t row) { return t.requests.at(row); });
    out << "\n## Allies\n\nShare of the games in which each fought for the president.\n\n";
    std::vector<std::string> allies{""};
    for (std::size_t n = 0; n < core::kFactions; ++n) {
        allies.emplace_back(core::kGroupNames.at(n));
    }
    WriteShares(out, samples, allies, Per::Game,
                [](const Tally& t, std::size_t row) { return t.allies.at(row); });
    out << "\n## Without an action\n\nWhat a skilled game on Normal is worth without it; noise is two "
           "standard "
           "errors.\n\n";
    WriteBans(out, bans);
    return out.str();
}

}  // namespace balance
