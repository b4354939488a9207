#include "instruments/bank.h"

#include "core/budget.h"
#include "month/banner.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace instruments {

namespace {

double AsDouble(const core::i32& field)
{
    return static_cast<double>(std::int64_t{field});
}

constexpr std::int64_t kMillion = 1'000'000;
constexpr std::string_view kDreams = "In your dreams!";

// What the state will lack next month: it must be found in the treasury then.
std::int64_t Deficit(const core::GameState& state)
{
    return std::max<std::int64_t>(-core::BalanceNow(state), 0);
}

}  // namespace

void TransferToSwissBank(core::GameState& state, double amount)
{
    state.Money = core::RoundHalfEven(AsDouble(state.Money) - amount);
    state.SwissBank = core::RoundHalfEven(amount + AsDouble(state.SwissBank));
}

Bank::Bank(core::GameState& state, screens::FrmBank& bank, screens::FrmMonthBanner& banner,
           media::Sound& sound, const core::NumberFormat& format)
    : state_(state), bank_(bank), banner_(banner), sound_(sound), format_(format)
{
    bank.onLoad = [this] { ShowFigures(); };
    bank.Command3.onClick = [this] { Proceed(); };
    bank.cmdStep.OnClick(
        [this](int step) { Add(screens::kBankMillions.at(static_cast<std::size_t>(step)) * kMillion); });
    bank.cmdAll.onClick = [this] { TakeAll(); };
    bank.cmdNotToday.onClick = [this] { Leave(); };
}

void Bank::Open()
{
    bank_.Show();
    ShowFigures();
}

// The amount is selected, so that typing replaces it.
void Bank::ShowFigures()
{
    bank_.Label2.SetText(format_.Amount(state_.SwissBank));
    bank_.lblDeficit.SetText(format_.Amount(Deficit(state_)));
    bank_.Text1.SetText(format_.Amount(state_.Money));
    bank_.Text1.Change([](ui::TextEdit& edit) { edit.SelectAll(); });
}

void Bank::Proceed()
{
    const std::optional<double> amount = format_.ParseAmount(bank_.Text1.Text());
    if (amount && *amount < 0) {
        return;  // the bank does not even look up
    }
    sound_.SoundClick();
    if (!amount) {
        Refuse("Mr.President, the bank accepts any amount that is a number. This one was not, and was filed "
               "under poetry.");
    } else if (*amount <= AsDouble(state_.Money)) {
        TransferToSwissBank(state_, *amount);
        ShowFigures();
    } else {
        Refuse(kDreams);
    }
}

// The box is filled with all there is; the first step begins at nought instead. No step asks for more than there is.
void Bank::Add(std::int64_t dollars)
{
    sound_.SoundClick();
    const bool untouched = bank_.Text1.Text() == format_.Amount(state_.Money);
    const double typed = untouched ? 0 : std::max(format_.ParseAmount(bank_.Text1.Text()).value_or(0), 0.0);
    const double most = std::max(AsDouble(state_.Money), 0.0);
    bank_.Text1.SetText(format_.Amount(std::min(typed + static_cast<double>(dollars), most)));
}

void Bank::TakeAll()
{
    sound_.SoundClick();
    bank_.Text1.SetText(format_.Amount(state_.Money));
}

void Bank::Leave()
{
    sound_.SoundClick();
    bank_.Hide();
}

void Bank::Review()
{
    banner_.Label1.onClick = Refused() ? std::function<void()>([this] { ComeBack(); }) : nullptr;
    if (!bank_.Visible()) {
        return;
    }
    const std::optional<double> amount = format_.ParseAmount(bank_.Text1.Text());
    std::string advice;
    if (!amount || *amount < 0) {
        advice = "The bank would like a number, and a cheerful one.";
    } else if (*amount > AsDouble(state_.Money)) {
        advice = "The treasury holds " + format_.Amount(state_.Money) + ". The bank can count.";
    } else if (AsDouble(state_.Money) - *amount < static_cast<double>(Deficit(state_))) {
        advice = "This would leave too little for the coming month.";
    }
    bank_.lblAdvice.SetText(advice);
}

bool Bank::ComeBack()
{
    if (!Refused()) {
        return false;
    }
    month::ClearBanner(banner_);
    Open();
    return true;
}

bool Bank::Refused() const
{
    return !bank_.Visible() && banner_.Label1.Text() == kDreams;
}

// The banner lies behind the bank's sheet, so that a refusal takes the sheet away.
void Bank::Refuse(std::string_view text)
{
    bank_.Hide();
    month::Say(banner_, text);
}

}  // namespace instruments
