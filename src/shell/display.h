// The display mode: switched once a run, restored when the player quits.
#pragma once

#include "core/game_state.h"
#include "media/host.h"

namespace shell {

class Display {
public:
    Display(core::GameState& state, media::Host& host) : state_(state), host_(host) {}

    void SwitchDisplayMode();
    void RestoreDisplayMode();
    // What the player wants from now on. Before the mode is switched for the first time it is only remembered.
    void Choose(bool fullScreen);

private:
    core::GameState& state_;
    media::Host& host_;
    bool fullScreen_ = true;
};

}  // namespace shell
