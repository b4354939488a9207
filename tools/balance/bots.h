// The presidents of the report. Each decides from the record alone, and by no chance but the country's own.
#pragma once

#include "balance/country.h"

#include <memory>
#include <string_view>
#include <vector>

namespace balance {

// A plan: what a steward pursues besides peace.
struct Plan {
    int sellFrom = 99;      // month; 0 sells from the first day
    int islands = 3;        // at most
    int leaveFrom = 99;     // the first uprising from this month on is a lift abroad
    double thrift = 0.5;    // points of danger that a million dollars is worth
    double courage = 0.95;  // fights when the chance to win is at least this
    bool provoke = false;   // lets the guerrillas come once it is time to leave
    bool helicopter = true;
    int guards = 10;         // strength of the personal army that it builds up to
    bool squeeze = false;    // at last every tax at 9 of those who are strong enough to rise
    int taxFrom = 99;        // month; every tax at 9, whoever pays it
    int richTo = 46;         // opposition to which the rich are taxed
    int poorTo = 0;          // the same for workers and peasants
    int reserve = 30;        // millions that stay in the treasury
    int monthsKept = 1;      // deficits that stay in it at last
    int provokedBefore = 3;  // months before leaving in which the guerrillas are let come
};

struct Kind {
    std::string_view name;
    std::unique_ptr<Bot> (*make)();
    bool trick = false;  // a way round the game that somebody found
    int weight = 1;      // of its games, what one costs: the report plays fewer of the dear ones
};
const std::vector<Kind>& Kinds();

inline constexpr std::int64_t kHisOwnChoice = -1;
// In the first uprising he calls `firstAlly`, whatever he thinks of him (0 flees).
std::unique_ptr<Bot> MakeSteward(const Plan& plan, std::int64_t firstAlly = kHisOwnChoice);
std::unique_ptr<Bot> MakeCunning(const Plan& plan);

// The chance that an alliance of this strength beats rebels of that one.
double ChanceToWin(std::int64_t allied, std::int64_t rebels);
double ChanceToWin(const core::GameState& state, std::int64_t ally);

}  // namespace balance
