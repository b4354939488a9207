// The action cards: what the police expect of an action, and the action itself.
//
//     state.ActionChoice = 7;
//     cards.ShowAction();        // frmShow; "Proceed" there runs MakeAction, "Cancel action" goes back
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/variants.h"
#include "events/proposals.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "ui/screens/frm_actions.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_show.h"

#include <functional>

namespace events {

class ActionCards {
public:
    struct Screens {
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmActions& frmActions;
        screens::FrmShow& frmShow;
    };
    ActionCards(core::GameState& state, core::Journal& journal, const files::ProgramFolder& folder,
                const core::Variants& variants, Screens screens, media::Sound& sound, Proposals& proposals);

    // The president picks a new chief; what follows is handed over.
    std::function<void(std::function<void()> afterwards)> newPoliceChief;
    std::function<void(std::function<void()> afterwards)> newArmyChief;

    void ShowAction();
    // The card's numbers, its message, the action's own effect. A card that cannot be read changes nothing.
    void MakeAction();

private:
    void FinishAction();

    core::GameState& state_;
    core::Journal& journal_;
    const files::ProgramFolder& folder_;
    const core::Variants& variants_;
    Screens screens_;
    media::Sound& sound_;
    Proposals& proposals_;
};

}  // namespace events
