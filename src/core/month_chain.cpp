#include "core/month_chain.h"

#include "core/banner.h"

namespace core {

namespace {

constexpr std::int64_t kCiaStrikesAt = 71;
constexpr std::int64_t kPrisonersRiseAt = 12;
constexpr std::int64_t kGuerrillasRiseAt = 15;
constexpr std::int64_t kMourning = 4000;  // milliseconds

void Run(const std::function<void()>& link)
{
    if (link) {
        link();
    }
}

}  // namespace

MonthChain::MonthChain(GameState& state, screens::FrmMain& main, screens::FrmMonthBanner& banner)
    : state_(state), main_(main), banner_(banner)
{
    main.Timer1.onTimer = [this] { Timer1_Timer(); };
    main.Timer4.onTimer = [this] { Timer4_Timer(); };
    main.Timer5.onTimer = [this] { Timer5_Timer(); };
    main.Timer6.onTimer = [this] { Timer6_Timer(); };
}

void MonthChain::Timer1_Timer()
{
    main_.Timer1.SetInterval(0);
    const struct {
        bool happens;
        const std::function<void()>& event;
    } links[] = {
        {state_.AmericanHostility >= kCiaStrikesAt, cia},
        {state_.War != 0, war},
        {state_.Strength[Prisoners] >= kPrisonersRiseAt, prisoners},
        {state_.Strength[Guerrillas] >= kGuerrillasRiseAt, guerillas},
    };
    for (const auto& link : links) {
        if (link.happens && link.event) {
            link.event();
            return;
        }
    }
    Run(otherwise);
}

void MonthChain::Timer4_Timer()
{
    main_.Timer4.SetInterval(0);
    ClearBanner(banner_);
    Run(hallOfFame);
}

void MonthChain::Timer5_Timer()
{
    main_.Timer5.SetInterval(0);
    Run(assassination);
}

void MonthChain::Timer6_Timer()
{
    main_.Timer6.SetInterval(0);
    SayDead(banner_, " Y O U   A R E   D E A D ! ");
    state_.Dead = 1;
    main_.Show();
    main_.Timer4.SetInterval(kMourning);
}

}  // namespace core
