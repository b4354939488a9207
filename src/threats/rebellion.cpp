#include "threats/rebellion.h"

#include "threats/revolution_rules.h"
#include "threats/uprising.h"
#include "ui/look/look.h"

namespace threats {

Rebellion::Rebellion(core::GameState& state, core::Chance& chance, screens::Screens& screens,
                     media::Sound& sound, Flight& flight, CivilWar& civilWar)
    : state_(state), chance_(chance), screens_(screens), sound_(sound)
{
    screens.frmRev.Command1.onClick = [&flight, &screens] { flight.From(screens.frmRev); };
    screens.frmRev.Command2.onClick = [&civilWar, &screens] { civilWar.StandAgainst(screens.frmRev); };
}

void Rebellion::Revolution()
{
    DrawRevolution(state_, chance_);
    if (state_.RevolutionStarter > 0) {
        RevolutionStart();
    } else if (otherwise) {
        otherwise();
    }
}

void Rebellion::RevolutionStart()
{
    sound_.SoundCroud();
    state_.Revolutions += 1;
    screens_.frmMonthBanner.SetBack(look::kRed);
    MeasureRevolution(state_);
    screens_.frmRev.Label2.SetText(RevolutionMessage(state_));
    screens_.frmRev.Image1.SetPicture(state_.CoupState == kNoCoup ? "images/revolution.bmp"
                                                                  : "images/coup.bmp");
    screens_.frmRev.ShowModal();
}

}  // namespace threats
