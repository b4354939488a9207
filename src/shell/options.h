// The options menu: history, hall of fame, manual, saved games, restart, about, quit.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "media/cues.h"
#include "media/host.h"
#include "shell/display.h"
#include "shell/hall.h"
#include "shell/manual.h"
#include "shell/saved_games.h"
#include "ui/screens/frm_about.h"
#include "ui/screens/frm_history.h"
#include "ui/screens/frm_options.h"

#include <functional>

namespace shell {

class Options {
public:
    struct Screens {
        screens::FrmOptions& frmOptions;
        screens::FrmHistory& frmHistory;
        screens::FrmAbout& frmAbout;
    };
    Options(core::GameState& state, Screens screens, media::Sound& sound, media::Host& host,
            const core::NumberFormat& format, Display& display, Manual& manual, SavedGames& savedGames,
            HallScreen& hall);

    std::function<void()> chronicle;  // "Chronicle": the presidency month by month
    std::function<void()> settings;   // "Settings": the player's own sheet

    void Open();
    void Label5_Click(int index);
    void Label5_MouseMove(int index);

private:
    void NameHistory();
    void Bind(ui::Label& card, std::function<void()>& open);
    static void Light(ui::Label& card, bool lit);
    void ShowHistory();

    core::GameState& state_;
    Screens screens_;
    media::Sound& sound_;
    media::Host& host_;
    const core::NumberFormat& format_;
    Display& display_;
    Manual& manual_;
    SavedGames& savedGames_;
    HallScreen& hall_;
};

}  // namespace shell
