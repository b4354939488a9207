// The month's chain of events, and the pauses at a game's end.
//
//     chain.links = {{ [this] { return proposals_.CiaStrikes(); }, ... }};   // each: did its event happen?
//     chain.From(month::Link::Coup);                                         // that link and those behind it
//
// The first event that happens is the month's story; a month without one has its second half, and
// then somebody may have a request.
#pragma once

#include "core/game_state.h"
#include "month/month.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <array>
#include <cstddef>
#include <functional>

namespace month {

// In the order in which they are tried.
enum class Link : std::size_t {
    Cia,
    War,
    Prisoners,
    Guerrillas,
    Coup,
    Revolution,
    Assassination,
    RandomEvent
};
inline constexpr std::size_t kLinks = static_cast<std::size_t>(Link::RandomEvent) + 1;

class Chain {
public:
    Chain(core::GameState& state, Month& month, screens::FrmMain& main, screens::FrmMonthBanner& banner);

    std::array<std::function<bool()>, kLinks> links;
    std::function<void()> request;     // who asks for something in a quiet month
    std::function<void()> attempt;     // what follows the pause of Timer5
    std::function<void()> hallOfFame;  // what follows every ending

    void From(Link first);

    void Timer1_Timer();  // the month's events
    void Timer4_Timer();  // the hall of fame
    void Timer5_Timer();  // the attempt that was announced
    void Timer6_Timer();  // death

private:
    core::GameState& state_;
    Month& month_;
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
};

}  // namespace month
