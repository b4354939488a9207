// The action cards: what the police expect of an action, and the action itself.
//
//     state.ActionChoice = 7;
//     cards.ShowAction();        // frmShow; "Proceed" there runs MakeAction, "Cancel action" goes back
#pragma once

#include "core/game_state.h"
#include "events/proposals.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>

namespace events {

class ActionCards {
public:
    ActionCards(core::GameState& state, const files::ProgramFolder& folder, screens::Screens& screens,
                media::Sound& sound, Proposals& proposals);

    // The president picks a new chief; what follows is handed over.
    std::function<void(std::function<void()> afterwards)> newPoliceChief;
    std::function<void(std::function<void()> afterwards)> newArmyChief;

    void ShowAction();
    // The card's numbers, its message, the action's own effect. A card that cannot be read changes nothing.
    void MakeAction();

private:
    void FinishAction();

    core::GameState& state_;
    const files::ProgramFolder& folder_;
    screens::Screens& screens_;
    media::Sound& sound_;
    Proposals& proposals_;
};

}  // namespace events
