// The Swiss bank: takes from the treasury and keeps. Nothing moves money back.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "media/cues.h"
#include "ui/screens/frm_bank.h"
#include "ui/screens/frm_month_banner.h"

namespace instruments {

// Moves the amount: Money - amount and SwissBank + amount, each formed in double precision and rounded
// half to even by itself, so that half a dollar may get lost or found on the way.
void TransferToSwissBank(core::GameState& state, double amount);

class Bank {
public:
    Bank(core::GameState& state, screens::FrmBank& bank, screens::FrmMonthBanner& banner, media::Sound& sound,
         const core::NumberFormat& format);

    void Open();
    // Says what is wrong with the amount before it is sent; whenever somebody looks.
    void Review();
    // After a refusal, while its words still stand there: back to the counter. Returns whether it was that.
    bool ComeBack();

private:
    void ShowFigures();
    void Add(std::int64_t dollars);
    void TakeAll();
    void Leave();
    bool Refused() const;
    void Proceed();
    void Refuse(std::string_view text);

    core::GameState& state_;
    screens::FrmBank& bank_;
    screens::FrmMonthBanner& banner_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
};

}  // namespace instruments
