// "Continue": the game is kept whenever a month is closed, and the start screen offers to go on with it.
//
//     continuation.Keep(true);          // the window does; bots and tests need no files
//     continuation.MonthClosed();       // after a month that is not the last one
//     continuation.GameOver();          // there is nothing to go on with
//     continuation.Offer();             // whenever the start screen is shown
//
// There is one place. A game takes it from another one only when it has closed two months: who looks into a new game
// for a month, or restarts by mistake, finds the old one where he left it. A free place is taken at once.
#pragma once

#include "core/game_state.h"
#include "files/written_files.h"
#include "media/cues.h"
#include "persist/kept_game.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_start.h"

#include <functional>
#include <string_view>

namespace shell {

class Continuation {
public:
    struct Screens {
        screens::FrmStart& frmStart;
        screens::FrmMonthBanner& frmMonthBanner;
    };
    Continuation(core::GameState& state, Screens screens, media::Sound& sound,
                 const files::WrittenFiles& files);

    std::function<void()> beginGame;                       // what a game needs before its record is put in
    std::function<void(std::string_view file)> onResumed;  // the record is that of the kept game
    std::function<void(std::string_view file)> onKept;     // what lies beside it is to be kept too

    void Keep(bool keep);
    bool Keeps() const { return keeps_; }
    void Offer();
    // A game begins that is not the kept one.
    void Begin();
    void MonthClosed();
    void GameOver();

private:
    void Resume();
    void ShowOffer(bool shown, std::string_view of);
    bool MayTakeThePlace() const;
    void TellWhenKept(const files::Failure& failure);
    void Tell(const files::Failure& failure);

    core::GameState& state_;
    Screens screens_;
    media::Sound& sound_;
    persist::KeptGame kept_;
    bool keeps_ = false;
    bool ours_ = false;   // whether what is kept is the game being played
    int closed_ = 0;      // months of this game
    bool told_ = false;   // that it could not be kept
    bool asked_ = false;  // whether the player knows that somebody has written in it
};

}  // namespace shell
