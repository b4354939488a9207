#include "threats/flight.h"

#include "core/actions.h"
#include "month/banner.h"
#include "threats/revolution_rules.h"
#include "ui/look/look.h"

namespace threats {

namespace {

constexpr std::int64_t kOnTheWay = 5000;  // milliseconds
constexpr std::int64_t kBeforeTheHall = 6000;

constexpr std::string_view kByHelicopter = "images/flight.bmp";
constexpr std::string_view kOnFoot = "images/walk.bmp";
constexpr std::string_view kAtTheWall = "images/execution.png";
constexpr std::string_view kExecuted =
    "You were arrested and executed by the Revolutioners! The new goverment announced the day of your death "
    "national holiday!";
constexpr std::string_view kEscaped = "Congratulations! You made it alive to the United States!";

}  // namespace

Flight::Flight(core::GameState& state, core::Chance& chance, core::Journal& journal, screens::FrmMain& main,
               screens::FrmMonthBanner& banner, media::Sound& sound)
    : state_(state), chance_(chance), journal_(journal), main_(main), banner_(banner), sound_(sound)
{
    main.Timer2.onTimer = [this] { Timer2_Timer(); };
}

void Flight::From(ui::Form& dialog)
{
    sound_.SoundClick();
    dialog.Hide();
    main_.Timer2.SetInterval(kOnTheWay);
    const bool flies = state_.ActionDone[core::kBuyHelicopter] == 1;
    journal_.Add(core::Kind::Flight, core::Who::Nobody, flies ? 1 : 0);
    if (flies) {
        month::Say(banner_, "You try to leave the country, using your escape helicopter.", kByHelicopter);
        if (HelicopterEscapes(state_, chance_)) {
            sound_.SoundHeliOK();
            state_.Dead = 0;
        } else {
            state_.Dead = 1;
            sound_.SoundHeliNo();
        }
    } else {
        month::Say(banner_, "You try to leave the country on foot!", kOnFoot);
        state_.Dead = WalkEscapes(chance_) ? 0 : 1;
    }
    main_.Show();
}

void Flight::Timer2_Timer()
{
    banner_.SetBack(look::kBlack);
    if (state_.Dead == 1) {
        month::Say(banner_, kExecuted, kAtTheWall);
    } else {
        month::Say(banner_, kEscaped);
    }
    journal_.Add(core::Kind::End, core::Who::Nobody, state_.Dead == 1 ? 0 : 1);
    main_.Timer4.SetInterval(kBeforeTheHall);
    main_.Timer2.SetInterval(0);
}

}  // namespace threats
