#include "instruments/bank.h"

#include "month/banner.h"

#include <optional>

namespace instruments {

namespace {

double AsDouble(const core::i32& field)
{
    return static_cast<double>(std::int64_t{field});
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
        Refuse("In your dreams!");
    }
}

// The banner lies behind the bank's sheet, so that a refusal takes the sheet away.
void Bank::Refuse(std::string_view text)
{
    bank_.Hide();
    month::Say(banner_, text);
}

}  // namespace instruments
