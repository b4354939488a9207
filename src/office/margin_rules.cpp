#include "office/margin_rules.h"

#include "core/actions.h"
#include "core/budget.h"
#include "events/card_effects.h"
#include "events/proposal_rules.h"
#include "instruments/report_rules.h"

#include <algorithm>

namespace office {

namespace {

using core::GameState;

Money Between(const GameState& before, const GameState& after)
{
    return {.monthly = core::BalanceNow(after) - core::BalanceNow(before),
            .lasts =
                after.GuerrillaWar == before.GuerrillaWar && after.ExpPersonalArmy == before.ExpPersonalArmy,
            .atOnce = after.Money - before.Money};
}

bool Reported(const GameState& state)
{
    return instruments::WhyNoReport(state) == instruments::ReportRefusal::None;
}

std::int64_t Percent(std::int64_t figure)
{
    return std::clamp<std::int64_t>(figure, 0, 100);
}

}  // namespace

Money MoneyOfAction(const GameState& state, std::int64_t action)
{
    if (action == core::kAskForAid) {
        return {.hoped = events::kAid};
    }
    GameState after = state;
    events::ApplyActionEffect(action, after);
    return Between(state, after);
}

Money MoneyOfRequest(const GameState& state, std::int64_t request)
{
    GameState after = state;
    events::ApplyRequestEffect(request, after);
    return Between(state, after);
}

std::string Told(const Money& money, const core::NumberFormat& format)
{
    const auto dollars = [&format](std::int64_t amount) {
        return (amount < 0 ? "It costs " + format.Amount(-amount) : "It brings " + format.Amount(amount)) +
               " dollars";
    };
    if (money.hoped != 0) {
        return dollars(money.hoped) + ", or nothing.";
    }
    if (money.atOnce != 0) {
        return dollars(money.atOnce) + " at once.";
    }
    if (money.monthly != 0) {
        return dollars(money.monthly) + (money.lasts ? " a month." : " in the coming month.");
    }
    return "The treasury will not notice.";
}

Known KnownOf(const GameState& state, core::Group group)
{
    const bool reported = Reported(state);
    const bool onTheMap = group == core::Army || group == core::Guerrillas;
    Known known;
    if (reported || onTheMap) {
        known.strength = state.Strength[group];
    }
    if (reported) {
        known.opposition = Percent(state.Opposition[group]);
    }
    return known;
}

std::optional<std::int64_t> HostilityOf(const GameState& state)
{
    return Reported(state) ? std::optional(Percent(state.AmericanHostility)) : std::nullopt;
}

}  // namespace office
