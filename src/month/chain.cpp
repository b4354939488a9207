#include "month/chain.h"

#include "month/banner.h"

#include <algorithm>
#include <span>

namespace month {

namespace {

constexpr std::int64_t kMourning = 4000;  // milliseconds

}  // namespace

Chain::Chain(core::GameState& state, Month& month, screens::FrmMain& main, screens::FrmMonthBanner& banner)
    : state_(state), month_(month), main_(main), banner_(banner)
{
    main.Timer1.onTimer = [this] { Timer1_Timer(); };
    main.Timer4.onTimer = [this] { Timer4_Timer(); };
    main.Timer5.onTimer = [this] { Timer5_Timer(); };
    main.Timer6.onTimer = [this] { Timer6_Timer(); };
}

void Chain::From(Link first)
{
    const auto tried = std::span(links).subspan(static_cast<std::size_t>(first));
    if (std::none_of(tried.begin(), tried.end(), [](const auto& happens) { return happens(); })) {
        month_.EndOfTurn2();
        request();
    }
}

void Chain::Timer1_Timer()
{
    main_.Timer1.SetInterval(0);
    From(Link::Cia);
}

void Chain::Timer4_Timer()
{
    main_.Timer4.SetInterval(0);
    ClearBanner(banner_);
    month_.End();
    hallOfFame();
}

void Chain::Timer5_Timer()
{
    main_.Timer5.SetInterval(0);
    attempt();
}

void Chain::Timer6_Timer()
{
    main_.Timer6.SetInterval(0);
    SayDead(banner_, " Y O U   A R E   D E A D ! ");
    state_.Dead = 1;
    main_.Show();
    main_.Timer4.SetInterval(kMourning);
}

}  // namespace month
