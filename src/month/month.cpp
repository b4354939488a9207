#include "month/month.h"

#include "core/month_rules.h"
#include "core/numbers.h"
#include "month/banner.h"

#include <string>

namespace month {

namespace {

constexpr std::int64_t kBeforeTheEvents = 3000;  // milliseconds

constexpr std::string_view kCannotPay =
    "Mr.President, we can't proceed to next month, because we can't cover our expenses! Please pay more "
    "attention to our finacial status.";
constexpr std::string_view kOneThing = "One thing at a time, Mr.President. ";
constexpr std::string_view kStillBusy = "This month has not finished with you.";

}  // namespace

void Month::NextMonth()
{
    if (open_ || !whoWaits_.empty()) {
        Say(banner_, std::string(kOneThing).append(whoWaits_.empty() ? kStillBusy : whoWaits_));
        return;
    }
    EndOfTurn();
}

void Month::EndOfTurn()
{
    core::ClearRevolution(state_);
    core::SettleAccounts(state_);
    if (!core::TreasuryCovers(state_)) {
        Say(banner_, kCannotPay);
        return;
    }
    const std::int64_t treasury = state_.Money;
    core::CountMonth(state_);
    journal_.Add(core::Kind::Month, core::Who::Nobody, state_.Money - treasury);
    Say(banner_,
        std::string("You are in power for ").append(core::Digits(state_.MonthsInPower)).append(" months"));
    open_ = true;
    TakeMenu();
    core::DecidePoliceReport(state_, chance_);
    core::TurnMonth(state_);
    main_.Timer1.SetInterval(kBeforeTheEvents);
}

void Month::EndOfTurn2()
{
    core::CloseMonth(state_);
}

void Month::Close()
{
    whoWaits_ = {};
    GiveMenuBack();
    Announce(false);
}

void Month::CloseWithSecondHalf()
{
    EndOfTurn2();
    Close();
}

void Month::CloseUnlessAsked()
{
    if (whoWaits_.empty()) {
        Close();
    } else {
        GiveMenuBack();
    }
}

void Month::End()
{
    Announce(true);
}

void Month::Forget()
{
    open_ = false;
    whoWaits_ = {};
    journal_.Clear();
}

void Month::GiveMenuBack()
{
    main_.SetEnabled(true);
    main_.Show();
}

void Month::Announce(bool gameOver)
{
    if (!open_) {
        return;
    }
    open_ = false;
    for (const auto& listener : listeners_) {
        listener({journal_.Notes(), gameOver});
    }
    journal_.Clear();
}

}  // namespace month
