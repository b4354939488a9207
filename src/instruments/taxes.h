// The taxes screen: the player sets the rates and reads the budget. Money moves only at the month's end.
//
// Ref and Ref2 write all figures: the opening runs both, a rate button only Ref, and nothing else
// refreshes an open screen.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "instruments/bank.h"
#include "media/cues.h"
#include "ui/screens/frm_taxes.h"

namespace instruments {

class Taxes {
public:
    Taxes(core::GameState& state, screens::FrmTaxes& taxes, Bank& bank, media::Sound& sound,
          const core::NumberFormat& format);

    void Open();
    void Ref();   // rates, income, balance and treasury
    void Ref2();  // expenses and balance

private:
    void Step(bool (*step)(core::GameState&, core::Group), core::Group faction);
    void ShowBalance();
    void GoToTheBank();

    core::GameState& state_;
    screens::FrmTaxes& taxes_;
    Bank& bank_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
};

}  // namespace instruments
