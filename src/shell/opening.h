// From the program's start to the first month: the title picture, the start screen, the president's name.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "media/host.h"
#include "shell/display.h"
#include "shell/manual.h"
#include "ui/screens/frm_about.h"
#include "ui/screens/frm_logo.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_name.h"
#include "ui/screens/frm_start.h"

#include <functional>

namespace shell {

class Opening {
public:
    struct Screens {
        screens::Frmlogo& frmlogo;
        screens::FrmStart& frmStart;
        screens::FrmName& frmName;
        screens::FrmAbout& frmAbout;
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmMain& frmMain;
    };
    Opening(core::GameState& state, Screens screens, media::Sound& sound, media::Host& host, Display& display,
            Manual& manual);

    std::function<void()> loadGame;  // "Load Game": straight to the archive

    std::function<void()> onStartShown;  // what else the start screen offers

    std::function<void()> settings;  // "Settings": the player's own sheet

    void ShowTitle();
    // The start screen, its level button naming the level that holds.
    void ShowStart();
    // Begins a game at the chosen level and asks for the president's name.
    void StartGame();
    // The same for a game that is loaded, where nobody asks.
    void BeginGame();

private:
    void LeaveTitle();
    void StepLevel();
    void ShowLevel();
    void Quit();
    void TakeName();

    core::GameState& state_;
    Screens screens_;
    media::Sound& sound_;
    media::Host& host_;
    Display& display_;
};

}  // namespace shell
