#include "balance/targets.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <span>

namespace balance {

namespace {

constexpr double kNoLimit = 1e9;
constexpr std::int64_t kEarly = 8;  // a trick is one that leaves before this month
constexpr std::int64_t kVeryLong = 72;

using Figure = std::function<double(const std::vector<Sample>&, std::int64_t level)>;

struct Row {
    const char* what;
    std::array<double, 3> least;
    std::array<double, 3> most;
    bool percent;
    Figure figure;
};

constexpr std::array<double, 3> All(double value)
{
    return {value, value, value};
}

Figure Of(const char* bot, const std::function<double(const Sample&)>& figure)
{
    return [bot, figure](const std::vector<Sample>& samples, std::int64_t level) {
        const Sample* sample = Find(samples, bot, level);
        return sample == nullptr ? 0 : figure(*sample);
    };
}

Figure Median(const char* bot)
{
    return Of(bot, [](const Sample& s) { return static_cast<double>(s.MonthsAt(0.5)); });
}

Figure Alive(const char* bot)
{
    return Of(bot, [](const Sample& s) { return s.Ends(Ending::Escaped); });
}

double Points(const std::vector<Sample>& samples, const char* bot, std::int64_t level)
{
    const Sample* sample = Find(samples, bot, level);
    return sample == nullptr ? 0 : sample->MeanPoints();
}

Figure Ratio(const char* bot, const char* other)
{
    return [bot, other](const std::vector<Sample>& samples, std::int64_t level) {
        return Points(samples, bot, level) / std::max(1.0, Points(samples, other, level));
    };
}

double BestTrick(const std::vector<Sample>& samples, std::int64_t level)
{
    double best = 0;
    for (const Sample& s : samples) {
        if (s.trick && s.level == level && s.MonthsAt(0.5) < kEarly) {
            best = std::max(best, s.MeanPoints());
        }
    }
    return best;
}

// Of the games of skilled and cunning: the share of months in which the action was signed.
std::array<double, kActions> Signed(const std::vector<Sample>& samples, std::int64_t level)
{
    std::array<double, kActions> shares{};
    double months = 0;
    for (const char* bot : {"skilled", "cunning"}) {
        if (const Sample* sample = Find(samples, bot, level)) {
            months += sample->Months();
            for (const Record& game : sample->games) {
                for (std::size_t a = 1; a < kActions; ++a) {
                    shares[a] += game.tally.actions[a];
                }
            }
        }
    }
    for (double& share : shares) {
        share /= std::max(1.0, months);
    }
    return shares;
}

// The 23rd action has no button; the helicopter is bought once.
bool Counts(std::size_t action)
{
    return action != core::kNoAction && action != core::kBuyHelicopter;
}

double SeldomActions(const std::vector<Sample>& samples, std::int64_t level)
{
    const auto shares = Signed(samples, level);
    double seldom = 0;
    for (std::size_t a = 1; a < kActions; ++a) {
        seldom += Counts(a) && shares[a] < 0.01 ? 1 : 0;
    }
    return seldom;
}

double MostSigned(const std::vector<Sample>& samples, std::int64_t level)
{
    const auto shares = Signed(samples, level);
    return *std::max_element(shares.begin(), shares.end());
}

double OtherAllies(const Sample& s)
{
    constexpr std::size_t kArmy = 6;
    double army = 0;
    double all = 0;
    for (const Record& game : s.games) {
        army += game.tally.allies[kArmy];
        all += std::accumulate(game.tally.allies.begin(), game.tally.allies.end(), 0);
    }
    return all == 0 ? 0 : 1 - army / all;
}

double CalmMonths(const Sample& s)
{
    double calm = 0;
    for (const Record& game : s.games) {
        calm += game.tally.calm;
    }
    return calm / std::max(1, s.Months());
}

// How many of a count's rows come up in fewer than a hundredth of the games.
template <class Counts> double Rare(const Sample& s, std::size_t first, Counts counts)
{
    double rare = 0;
    for (std::size_t row = first; row < counts(s.games.front().tally).size(); ++row) {
        const auto games = std::count_if(s.games.begin(), s.games.end(),
                                         [&](const Record& game) { return counts(game.tally)[row] > 0; });
        rare += static_cast<double>(games) < 0.01 * static_cast<double>(s.games.size()) ? 1 : 0;
    }
    return rare;
}

double RarestEnding(const std::vector<Sample>& samples, std::int64_t level)
{
    double rarest = 1;
    for (const Ending ending :
         {Ending::Escaped, Ending::Executed, Ending::Basement, Ending::Assassin, Ending::Cia}) {
        double ended = 0;
        double games = 0;
        for (const Sample& s : samples) {
            if (s.level == level) {
                ended += s.Ends(ending) * static_cast<double>(s.games.size());
                games += static_cast<double>(s.games.size());
            }
        }
        rarest = std::min(rarest, ended / std::max(1.0, games));
    }
    return rarest;
}

double VeryLong(const std::vector<Sample>& samples, std::int64_t level)
{
    double longest = 0;
    double games = 0;
    for (const Sample& s : samples) {
        if (s.level == level) {
            games += static_cast<double>(s.games.size());
            longest += static_cast<double>(std::count_if(
                s.games.begin(), s.games.end(), [](const Record& g) { return g.months >= kVeryLong; }));
        }
    }
    return longest / std::max(1.0, games);
}

double Longest(const std::vector<Sample>& samples, std::int64_t level)
{
    std::int64_t longest = 0;
    for (const Sample& s : samples) {
        longest = s.level == level ? std::max(longest, s.MonthsAt(1)) : longest;
    }
    return static_cast<double>(longest);
}

std::vector<Row> Rows()
{
    const auto rare = [](auto counts, std::size_t first) {
        return Of("skilled", [counts, first](const Sample& s) { return Rare(s, first, counts); });
    };
    return {
        {"careful: median of months", {24, 16, 10}, {48, 32, 20}, false, Median("careful")},
        {"random: median of months", {3, 3, 2}, {7, 6, 4}, false, Median("random")},
        {"random: alive", All(0), All(0.15), true, Alive("random")},
        {"careful: alive", All(0.55), All(0.85), true, Alive("careful")},
        {"skilled: alive", All(0.70), All(0.95), true, Alive("skilled")},
        {"cunning: alive", All(0.70), All(0.95), true, Alive("cunning")},
        {"skilled / careful, points", All(2.5), All(kNoLimit), false, Ratio("skilled", "careful")},
        {"cunning / skilled, points", All(1.5), All(kNoLimit), false, Ratio("cunning", "skilled")},
        {"best early trick / cunning", All(0), All(0.6), false,
         [](const auto& s, std::int64_t level) {
             return BestTrick(s, level) / std::max(1.0, Points(s, "cunning", level));
         }},
        {"best early trick / skilled",
         All(0),
         {1, 1, kNoLimit},
         false,
         [](const auto& s, std::int64_t level) {
             return BestTrick(s, level) / std::max(1.0, Points(s, "skilled", level));
         }},
        {"games that reach month 72", All(0), All(0.02), true, VeryLong},
        {"longest game, months", All(0), All(119), false, Longest},
        {"careful: bankrupt", All(0), All(0.02), true,
         Of("careful", [](const Sample& s) { return s.Ends(Ending::Bankrupt); })},
        {"actions that skilled and cunning sign in less than 1 % of their months", All(0), All(0), false,
         SeldomActions},
        {"share of months of the most signed one", All(0), All(0.40), true, MostSigned},
        {"skilled: fights beside others than the Army", All(0.20), All(1), true, Of("skilled", OtherAllies)},
        {"skilled: calm months", All(0.25), All(0.50), true, Of("skilled", CalmMonths)},
        {"skilled: links seen in less than 1 % of games", All(0), All(0), false,
         rare([](const Tally& t) { return std::span(t.links); }, 0)},
        {"skilled: requests seen in less than 1 %", All(0), All(0), false,
         rare([](const Tally& t) { return std::span(t.requests); }, 1)},
        {"skilled: allies seen in less than 1 %", All(0), All(0), false,
         rare([](const Tally& t) { return std::span(t.allies); }, 1)},
        {"rarest ending, of all bots' games", All(0.02), All(1), true, RarestEnding},
    };
}

}  // namespace

std::vector<Target> Targets(const std::vector<Sample>& samples, const std::vector<Ban>& bans)
{
    std::vector<Target> targets;
    for (const Row& row : Rows()) {
        Target target{row.what, row.least, row.most, {}, row.percent};
        for (std::size_t level = 0; level < target.value.size(); ++level) {
            target.value[level] = row.figure(samples, static_cast<std::int64_t>(level));
        }
        targets.push_back(target);
    }
    double worst = 0;
    double matter = 0;
    for (const Ban& ban : bans) {
        matter += ban.change < -ban.noise ? 1 : 0;
        worst = ban.action == core::kBuyHelicopter ? worst : std::min(worst, ban.change);
    }
    targets.push_back(
        {"dearest loss of one action (Normal; the helicopter apart)", All(-0.30), All(0), All(worst), true});
    targets.push_back(
        {"actions without which less is earned, beyond the noise (Normal)", All(14), All(24), All(matter)});
    return targets;
}

}  // namespace balance
