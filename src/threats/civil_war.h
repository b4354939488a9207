// The civil war: an ally is asked, his price is paid, and one battle decides.
//
//     Choose          frmChoose: who might help; frmMes2: what he wants
//     Timer3_Timer    the battle: death and the hall of fame, or the month is closed;
//                     after a coup once more, to replace the chief
//
// An ally whose offer cannot be read cannot be asked; when nobody is left, frmChoose offers the flight.
#pragma once

#include "core/cards.h"
#include "core/chance.h"
#include "core/game_state.h"
#include "core/month_end.h"
#include "core/numbers.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "threats/flight.h"
#include "ui/screens/screens.h"

#include <functional>

namespace threats {

class CivilWar {
public:
    CivilWar(core::GameState& state, core::Chance& chance, core::MonthEnd& monthEnd,
             const files::ProgramFolder& folder, screens::Screens& screens, media::Sound& sound,
             const core::NumberFormat& format, Flight& flight);

    void StandAgainst(ui::Form& dialog);  // "Stay and fight!"
    void Choose();
    void Timer3_Timer();

    // What lets the player pick a new chief; afterwards runs once he has.
    std::function<void(std::function<void()> afterwards)> newArmyChief;
    std::function<void(std::function<void()> afterwards)> newPoliceChief;

private:
    void AskForHelp();
    void ShowCandidates();
    void OfferFlightWhenAlone();
    void Stretch(int buttons);
    void Ask(int button);
    void Never();
    void Deal();
    files::Result<core::Offer> ReadOfferOf(std::int64_t faction) const;
    void TurnAway(std::int64_t faction, const files::FileError& error);

    void Fight();
    void Lose();
    void Win();
    void ReplaceChief();

    core::GameState& state_;
    core::Chance& chance_;
    core::MonthEnd& monthEnd_;
    const files::ProgramFolder& folder_;
    screens::Screens& screens_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
};

}  // namespace threats
