// What happened in one game, counted.
#pragma once

#include <array>
#include <cstdint>
#include <set>

namespace balance {

enum class Ending { None, Escaped, Executed, Basement, Assassin, Cia, Bankrupt, Stopped, Count };

// Where a month's chain stopped; a quiet month may still bring a request.
enum class Link {
    Cia,
    War,
    Prisoners,
    Guerrillas,
    Coup,
    Revolution,
    Attempt,
    ChiefGone,
    Disaster,
    Demand,
    Damage,
    GoodNews,
    Quiet,
    Count
};

struct Tally {
    std::array<int, 26> actions{};  // months in which it was signed
    std::array<int, 8> requests{};
    std::array<int, 8> allies{};  // fights, by faction
    std::array<int, static_cast<std::size_t>(Link::Count)> links{};
    std::array<int, 2> flights{};  // on foot, by helicopter
    std::set<int> pages;           // of the newspaper
    int repeatedPages = 0;
    int calm = 0;  // months in which nothing happened and nothing was red
    int months = 0;
};

}  // namespace balance
