// What is written beside the State's forms: what a card does to the money, and what its figures are now.
//
//     MoneyOfAction(state, core::kCutHealth)   // what holds afterwards less what holds now
//     Told(money, format)                      // "It brings 357,175 dollars a month."
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"

#include <cstdint>
#include <optional>
#include <string>

namespace office {

// Dollars; gains are positive.
struct Money {
    std::int64_t monthly = 0;  // on the balance of the coming month
    bool lasts = true;         // else that month alone: a campaign ends, and recruits are paid more at first
    std::int64_t atOnce = 0;
    std::int64_t hoped = 0;  // at once, or nothing

    bool operator==(const Money&) const = default;
};

// By the deed's own rule, tried on a copy of the record.
Money MoneyOfAction(const core::GameState& state, std::int64_t action);
Money MoneyOfRequest(const core::GameState& state, std::int64_t request);

// One sentence.
std::string Told(const Money& money, const core::NumberFormat& format);

// A group's figures as the president could read them: those of the police report, opposition as it bounds it; the
// army's and the guerrillas' strength also stand on the map.
struct Known {
    std::optional<std::int64_t> strength;
    std::optional<std::int64_t> opposition;  // percent
};
Known KnownOf(const core::GameState& state, core::Group group);
// Percent; none without a report.
std::optional<std::int64_t> HostilityOf(const core::GameState& state);

}  // namespace office
