// The requests: in a quiet month a faction may ask the president for something.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

namespace events {

class Requests {
public:
    Requests(core::GameState& state, core::Chance& chance, const files::ProgramFolder& folder,
             screens::Screens& screens, media::Sound& sound);

    // The month's last event. The main screen is given back in any case: at once where nobody asks, else by
    // the answer.
    void Request();
    void ShowAction2();
    void MakeRequest();
    void DontMakeRequest();

private:
    core::GameState& state_;
    core::Chance& chance_;
    const files::ProgramFolder& folder_;
    screens::Screens& screens_;
    media::Sound& sound_;
};

}  // namespace events
