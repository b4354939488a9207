// From the program's start to the first month: the title picture, the start screen, the president's name.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "media/host.h"
#include "shell/display.h"
#include "shell/manual.h"
#include "ui/screens/screens.h"

#include <functional>

namespace shell {

class Opening {
public:
    Opening(core::GameState& state, screens::Screens& screens, media::Sound& sound, media::Host& host,
            Display& display, Manual& manual);

    std::function<void()> loadGame;  // what follows the name when a saved game shall be loaded

    void ShowTitle();
    // The start screen, its level button naming the level that holds.
    void ShowStart();
    // Begins a game at the chosen level; afterwards runs when the name has been given.
    void StartGame(std::function<void()> afterwards = {});

private:
    void LeaveTitle();
    void StepLevel();
    void Quit();
    void TakeName();

    core::GameState& state_;
    screens::Screens& screens_;
    media::Sound& sound_;
    media::Host& host_;
    Display& display_;
};

}  // namespace shell
