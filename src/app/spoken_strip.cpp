#include "app/spoken_strip.h"

#include "core/budget.h"
#include "ui/reading/wording.h"

#include <algorithm>
#include <cstdint>

namespace {

std::string Dollars(std::int64_t amount)
{
    return reading::Said(reading::WithGroups(amount) + "$");
}

}  // namespace

std::vector<std::string> SpokenStrip(const core::GameState& state)
{
    core::GameState counted = state;  // a question changes nothing
    core::UpdateTaxIncome(counted);
    core::UpdateExpTotal(counted);
    const std::int64_t balance = core::Balance(counted);
    const std::int64_t money = state.Money;
    std::vector<std::string> lines{
        "Month " + std::to_string(std::int64_t{state.MonthsInPower}) + ".",
        "Treasury " + Dollars(money) + ", balance " + Dollars(balance) + " a month.",
    };
    if (balance < 0) {
        const std::int64_t months = std::max<std::int64_t>(money, 0) / -balance;
        lines.push_back("That lasts for " + std::to_string(months) + (months == 1 ? " month." : " months."));
    }
    const std::int64_t favour = std::min<std::int64_t>(100 - state.AmericanHostility, 100);
    lines.push_back("The Americans' favour is " + reading::Said(std::to_string(favour) + "%") + ".");
    return lines;
}
