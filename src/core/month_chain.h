// The head of the month's chain and the pauses at a game's end.
//
// Each link of the chain is told what to run; it knows only "my event happens" or "otherwise". The links
// that follow the first four call each other; the game wires all of them in one place.
#pragma once

#include "core/game_state.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <functional>

namespace core {

class MonthChain {
public:
    MonthChain(GameState& state, screens::FrmMain& main, screens::FrmMonthBanner& banner);

    // The month's events in the order in which they are tried; the first whose condition holds runs.
    std::function<void()> cia;        // the Americans are hostile enough to send somebody
    std::function<void()> war;        // a declared war is decided
    std::function<void()> prisoners;  // they have gathered their strength
    std::function<void()> guerillas;  // so have those in the mountains
    std::function<void()> otherwise;  // the chiefs, and all that comes behind them

    std::function<void()> assassination;  // what follows the pause of Timer5
    std::function<void()> hallOfFame;     // what follows every ending

    void Timer1_Timer();  // the month's events
    void Timer4_Timer();  // the hall of fame
    void Timer5_Timer();  // the attempt that was announced
    void Timer6_Timer();  // death

private:
    GameState& state_;
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace core
