#include "balance/sample.h"

#include "balance/play.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <ctime>
#include <thread>

namespace balance {

namespace {

constexpr int kLongest = 130;  // months played at most
constexpr int kLevels = 3;
constexpr int kFewestGames = 10;        // of a dear bot
constexpr std::uint64_t kApart = 1000;  // between the seeds of two games

std::int64_t Quantile(std::vector<std::int64_t> values, double share)
{
    if (values.empty()) {
        return 0;
    }
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(std::lround(share * static_cast<double>(values.size() - 1)))];
}

Record PlayOne(Country& country, const Kind& kind, std::int64_t level, std::uint64_t seed)
{
    Record record;
    country.tally = &record.tally;
    country.Begin(level, seed);
    const std::unique_ptr<Bot> bot = kind.make();
    bot->Begin(country);
    Play(country, *bot, kLongest, [&record](const Country& now) {
        const auto& opposition = now.state.Opposition;
        record.treasury.push_back(static_cast<float>(std::int64_t{now.state.Money}) / 1e6F);
        record.angriest.push_back(static_cast<float>(
            std::int64_t{*std::max_element(opposition.begin(), opposition.begin() + core::kFactions)}));
    });
    record.months = country.state.MonthsInPower;
    record.points = country.Points();
    record.ending = country.ending;
    country.tally = nullptr;
    return record;
}

double SecondsOfThisThread()
{
    timespec spent{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return static_cast<double>(spent.tv_sec) + static_cast<double>(spent.tv_nsec) / 1e9;
}

}  // namespace

double Sample::MeanPoints() const
{
    double sum = 0;
    for (const Record& game : games) {
        sum += static_cast<double>(game.points);
    }
    return games.empty() ? 0 : sum / static_cast<double>(games.size());
}

double Sample::ErrorOfMean() const
{
    const double mean = MeanPoints();
    double squares = 0;
    for (const Record& game : games) {
        squares += std::pow(static_cast<double>(game.points) - mean, 2);
    }
    return games.empty() ? 0 : std::sqrt(squares) / static_cast<double>(games.size());
}

std::int64_t Sample::MonthsAt(double share) const
{
    std::vector<std::int64_t> values;
    for (const Record& game : games) {
        values.push_back(game.months);
    }
    return Quantile(values, share);
}

std::int64_t Sample::PointsAt(double share) const
{
    std::vector<std::int64_t> values;
    for (const Record& game : games) {
        values.push_back(game.points);
    }
    return Quantile(values, share);
}

double Sample::Ends(Ending how) const
{
    const auto so =
        std::count_if(games.begin(), games.end(), [how](const Record& game) { return game.ending == how; });
    return games.empty() ? 0 : static_cast<double>(so) / static_cast<double>(games.size());
}

int Sample::Months() const
{
    int months = 0;
    for (const Record& game : games) {
        months += game.tally.months;
    }
    return months;
}

// Game i has a seed of its own, whoever plays it, so that the page is the same on any number of cores.
Sample PlayMany(const Deck& deck, const Kind& kind, std::int64_t level, const Orders& orders,
                std::bitset<kActions> banned)
{
    Sample sample{kind.name, level, kind.trick, 0, {}};
    sample.games.resize(static_cast<std::size_t>(std::max(kFewestGames, orders.games / kind.weight)));
    std::atomic<std::size_t> next = 0;
    std::vector<double> seconds(orders.threads);
    {
        std::vector<std::jthread> workers;
        for (unsigned t = 0; t < orders.threads; ++t) {
            workers.emplace_back([&, t] {
                const double begun = SecondsOfThisThread();
                Country country(deck);
                country.banned = banned;
                for (std::size_t i = next++; i < sample.games.size(); i = next++) {
                    sample.games[i] = PlayOne(country, kind, level, orders.seed + kApart * i);
                }
                seconds[t] = SecondsOfThisThread() - begun;
            });
        }
    }
    double spent = 0;
    for (const double each : seconds) {
        spent += each;
    }
    sample.monthsPerSecond = sample.Months() / spent;
    return sample;
}

std::vector<Sample> PlayAll(const Deck& deck, const Orders& orders)
{
    std::vector<Sample> samples;
    for (const Kind& kind : Kinds()) {
        if (orders.only.empty() || orders.only == kind.name) {
            for (std::int64_t level = 0; level < kLevels; ++level) {
                samples.push_back(PlayMany(deck, kind, level, orders));
            }
        }
    }
    return samples;
}

const Sample* Find(const std::vector<Sample>& samples, std::string_view bot, std::int64_t level)
{
    const auto at = std::find_if(samples.begin(), samples.end(),
                                 [&](const Sample& s) { return s.bot == bot && s.level == level; });
    return at == samples.end() ? nullptr : &*at;
}

std::vector<Ban> PlayBans(const Deck& deck, const Orders& orders)
{
    const auto& kinds = Kinds();
    const auto skilled =
        std::find_if(kinds.begin(), kinds.end(), [](const Kind& k) { return k.name == "skilled"; });
    const Sample with = PlayMany(deck, *skilled, core::kNormal, orders);
    std::vector<Ban> bans;
    for (std::int64_t action = 1; action < static_cast<std::int64_t>(kActions); ++action) {
        if (action == core::kNoAction) {
            continue;
        }
        std::bitset<kActions> banned;
        banned.set(static_cast<std::size_t>(action));
        const Sample without = PlayMany(deck, *skilled, core::kNormal, orders, banned);
        bans.push_back({action, without.MeanPoints() / with.MeanPoints() - 1,
                        2 * std::hypot(with.ErrorOfMean(), without.ErrorOfMean()) / with.MeanPoints()});
    }
    return bans;
}

}  // namespace balance
