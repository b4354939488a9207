// The month end: the routine that opens it and the one that closes it.
//
//     EndOfTurn       accounts, the refusal or the next month, three seconds of silence
//     (the chain)     at most one event
//     EndOfTurn2      flight, hatred and waiting times; the caller gives the main screen back
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

namespace core {

class MonthEnd {
public:
    MonthEnd(GameState& state, Chance& chance, Journal& journal, screens::FrmMain& main,
             screens::FrmMonthBanner& banner)
        : state_(state), chance_(chance), journal_(journal), main_(main), banner_(banner)
    {}

    void EndOfTurn();
    void EndOfTurn2();  // at most once a month

private:
    GameState& state_;
    Chance& chance_;
    Journal& journal_;
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace core
