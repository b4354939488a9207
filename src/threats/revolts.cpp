#include "threats/revolts.h"

#include "core/numbers.h"
#include "threats/revolt_rules.h"
#include "ui/look/look.h"

namespace threats {

Revolts::Revolts(core::GameState& state, core::Journal& journal, Screens screens, media::Sound& sound,
                 Flight& flight, CivilWar& civilWar)
    : state_(state), journal_(journal), screens_(screens), sound_(sound)
{
    const auto bind = [&flight, &civilWar](auto& dialog) {
        dialog.Command1.onClick = [&flight, &dialog] { flight.From(dialog); };
        dialog.Command2.onClick = [&civilWar, &dialog] { civilWar.StandAgainst(dialog); };
    };
    bind(screens.frmGRev);
    bind(screens.frmPrRev);
}

bool Revolts::GuerrillasRise()
{
    if (!GuerrillasAreReady(state_)) {
        return false;
    }
    Guerillas();
    return true;
}

bool Revolts::PrisonersRise()
{
    if (!PrisonersAreReady(state_)) {
        return false;
    }
    Prisoners();
    return true;
}

void Revolts::Guerillas()
{
    const std::int64_t share = RaiseGuerrillas(state_);
    Announce(core::Guerrillas, screens_.frmGRev, screens_.frmGRev.Label3, share);
}

void Revolts::Prisoners()
{
    const std::int64_t share = RaisePrisoners(state_);
    Announce(core::Prisoners, screens_.frmPrRev, screens_.frmPrRev.Label3, share);
}

void Revolts::Announce(core::Group who, ui::Form& dialog, ui::Label& share, std::int64_t percent)
{
    journal_.Add(core::Kind::Revolt, core::WhoIs(who), percent);
    screens_.frmMonthBanner.SetBack(look::kRed);
    sound_.SoundCroud();
    dialog.Show();
    share.SetText("Revolutionaries total strength is at " + core::Digits(percent) +
                  "%! What do you want to do?");
}

}  // namespace threats
