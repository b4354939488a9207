// Proposals and the Americans: the answers to frmRandom2, the request for aid, and the end of their patience.
//
//     state.DealCode = kNavalBase;
//     screens.frmRandom2.Show();     // "Do it!" runs Deal, "Never!" runs Never; either closes the month
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "events/newspaper.h"
#include "media/cues.h"
#include "month/month.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_random2.h"
#include "ui/screens/frm_usa.h"

namespace events {

class Proposals {
public:
    struct Screens {
        screens::FrmMain& frmMain;
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmRandom2& frmRandom2;
        screens::FrmUSA& frmUSA;
    };
    Proposals(core::GameState& state, core::Journal& journal, month::Month& month, Screens screens,
              media::Sound& sound, const core::NumberFormat& format, Newspaper& newspaper);

    void Deal();
    void Never();
    void AmericanAid();
    // Whether the C.I.A. has come. Its button leaves five and a half seconds.
    bool CiaStrikes();

private:
    void AnswerYes();
    void AnswerNo();
    void AwaitDeath();
    void NoteAnswer(bool yes);
    void EndAnswer();

    core::GameState& state_;
    core::Journal& journal_;
    month::Month& month_;
    Screens screens_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
    Newspaper& newspaper_;
};

}  // namespace events
