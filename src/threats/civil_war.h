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
#include "core/journal.h"
#include "core/numbers.h"
#include "core/variants.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "month/month.h"
#include "threats/flight.h"
#include "ui/screens/frm_choose.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_mes2.h"
#include "ui/screens/frm_month_banner.h"

#include <functional>

namespace threats {

class CivilWar {
public:
    struct Screens {
        screens::FrmMain& frmMain;
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmChoose& frmChoose;
        screens::FrmMes2& frmMes2;
    };
    CivilWar(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
             const files::ProgramFolder& folder, const core::Variants& variants, Screens screens,
             media::Sound& sound, const core::NumberFormat& format, Flight& flight);

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
    bool Away(int button) const;
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
    core::Journal& journal_;
    month::Month& month_;
    const files::ProgramFolder& folder_;
    const core::Variants& variants_;
    Screens screens_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
    int candidates_ = 0;                   // how many stand on frmChoose
    core::PerFactionNumber<bool> away_{};  // who turned out not to be there, by faction number
};

}  // namespace threats
