#include "threats/revolts.h"

#include "core/numbers.h"
#include "threats/revolt_rules.h"
#include "ui/look/look.h"

namespace threats {

Revolts::Revolts(core::GameState& state, screens::Screens& screens, media::Sound& sound, Flight& flight,
                 CivilWar& civilWar)
    : state_(state), screens_(screens), sound_(sound)
{
    screens.frmGRev.Command1.onClick = [&flight, &screens] { flight.From(screens.frmGRev); };
    screens.frmGRev.Command2.onClick = [&civilWar, &screens] { civilWar.StandAgainst(screens.frmGRev); };
    screens.frmPrRev.Command1.onClick = [&flight, &screens] { flight.From(screens.frmPrRev); };
    screens.frmPrRev.Command2.onClick = [&civilWar, &screens] { civilWar.StandAgainst(screens.frmPrRev); };
}

void Revolts::Guerillas()
{
    const std::int64_t share = RaiseGuerrillas(state_);
    Announce(screens_.frmGRev, screens_.frmGRev.Label3, share);
}

void Revolts::Prisoners()
{
    const std::int64_t share = RaisePrisoners(state_);
    Announce(screens_.frmPrRev, screens_.frmPrRev.Label3, share);
}

void Revolts::Announce(ui::Form& dialog, ui::Label& share, std::int64_t percent)
{
    screens_.frmMonthBanner.SetBack(look::kRed);
    sound_.SoundCroud();
    dialog.Show();
    share.SetText("Revolutionaries total strength is at " + core::Digits(percent) +
                  "%! What do you want to do?");
}

}  // namespace threats
