#include "core/month_end.h"

#include "core/banner.h"
#include "core/month.h"
#include "core/numbers.h"

namespace core {

namespace {

constexpr std::int64_t kBeforeTheEvents = 3000;  // milliseconds

constexpr std::string_view kCannotPay =
    "Mr.President, we can't proceed to next month, because we can't cover our expenses! Please pay more "
    "attention to our finacial status.";

}  // namespace

void MonthEnd::EndOfTurn()
{
    ClearRevolution(state_);
    SettleAccounts(state_);
    if (!TreasuryCovers(state_)) {
        Say(banner_, kCannotPay);
        return;
    }
    const std::int64_t treasury = state_.Money;
    CountMonth(state_);
    journal_.Add(Kind::Month, Who::Nobody, state_.Money - treasury);
    Say(banner_, "You are in power for " + Digits(state_.MonthsInPower) + " months");
    main_.SetEnabled(false);
    DecidePoliceReport(state_, chance_);
    TurnMonth(state_);
    main_.Timer1.SetInterval(kBeforeTheEvents);
}

void MonthEnd::EndOfTurn2()
{
    CloseMonth(state_);
}

}  // namespace core
