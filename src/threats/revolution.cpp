#include "threats/revolution.h"

#include "threats/revolution_rules.h"
#include "ui/look/look.h"

namespace threats {

Revolution::Revolution(core::GameState& state, core::Chance& chance, core::Journal& journal,
                       screens::FrmMonthBanner& banner, screens::FrmRev& dialog, media::Sound& sound,
                       Flight& flight, CivilWar& civilWar)
    : state_(state), chance_(chance), journal_(journal), banner_(banner), dialog_(dialog), sound_(sound)
{
    dialog.Command1.onClick = [&flight, &dialog] { flight.From(dialog); };
    dialog.Command2.onClick = [&civilWar, &dialog] { civilWar.StandAgainst(dialog); };
}

bool Revolution::BreaksOut()
{
    DrawRevolution(state_, chance_);
    if (state_.RevolutionStarter == 0) {
        return false;
    }
    RevolutionStart();
    return true;
}

void Revolution::RevolutionStart()
{
    sound_.SoundCroud();
    state_.Revolutions += 1;
    banner_.SetBack(look::kRed);
    MeasureRevolution(state_);
    NoteRevolution();
    dialog_.Label2.SetText(RevolutionMessage(state_));
    dialog_.Image1.SetPicture(state_.CoupState == core::kNoCoup ? "images/revolution.bmp"
                                                                : "images/coup.bmp");
    dialog_.ShowModal();
}

void Revolution::NoteRevolution()
{
    journal_.Add(core::Kind::Revolution, core::FactionOf(state_.RevolutionStarter), state_.RevolutionaryPct);
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        const auto faction = static_cast<std::int64_t>(n);
        if (state_.Revolutionaries[n] == 1 && state_.RevolutionStarter != faction) {
            journal_.Add(core::Kind::Joined, core::FactionOf(faction), state_.Strength[n - 1]);
        }
    }
}

}  // namespace threats
