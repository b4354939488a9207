// Many games of one bot on one level.
//
//     const Sample sample = PlayMany(deck, kind, core::kNormal, orders);
//     sample.MeanPoints();                        // in the hall; the dead count as 0
#pragma once

#include "balance/bots.h"

#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace balance {

struct Record {  // of one game
    std::int64_t months = 0;
    std::int64_t points = 0;
    Ending ending = Ending::None;
    Tally tally;
    // At the beginning of each month.
    std::vector<float> treasury;  // millions
    std::vector<float> angriest;  // the highest opposition of a faction, percent
};

struct Sample {
    std::string_view bot;
    std::int64_t level = 0;
    bool trick = false;
    double monthsPerSecond = 0;  // of processor time, on one core
    std::vector<Record> games;

    double MeanPoints() const;
    double ErrorOfMean() const;                 // one standard error of it
    std::int64_t MonthsAt(double share) const;  // 0.5: the median
    std::int64_t PointsAt(double share) const;
    double Ends(Ending how) const;  // share of the games
    int Months() const;             // of all games
};

struct Orders {
    int games = 400;  // of a bot whose weight is 1
    std::uint64_t seed = 1964;
    unsigned threads = 2;
    std::string only{};  // the bot of this name alone; empty: all of them
};

Sample PlayMany(const Deck& deck, const Kind& kind, std::int64_t level, const Orders& orders,
                std::bitset<kActions> banned = {});
std::vector<Sample> PlayAll(const Deck& deck, const Orders& orders);
const Sample* Find(const std::vector<Sample>& samples, std::string_view bot, std::int64_t level);

// What skilled games on Normal are worth without an action.
struct Ban {
    std::int64_t action;
    double change;  // share of the points; negative is lost
    double noise;   // two standard errors of it
};
std::vector<Ban> PlayBans(const Deck& deck, const Orders& orders);

}  // namespace balance
