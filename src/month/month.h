// The month and its owner: whose turn it is, the president's or the country's.
//
//     NextMonth     the menu's command; waits while a month is open
//     EndOfTurn     accounts, the refusal or the next month, three seconds of silence: the month is open
//     (the chain)   at most one event, which tells, asks and pauses as long as it likes
//     EndOfTurn2    flight, hatred and waiting times; not every story has this second half
//     Close         whoever ends the story: the menu is the president's again
//
// An open month is closed once, and as long as it is open some shown screen or armed timer leads there. Nobody
// else enables the main screen. A routine that is called by its name outside a month gives the menu back in the
// same way; then there is nothing to close.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace month {

// What is told when a month has been closed.
struct Closed {
    const std::vector<core::Note>& notes;  // from the month before on, the president's own actions included
    bool gameOver;                         // the hall of fame is next, and no other month
};

class Month {
public:
    Month(core::GameState& state, core::Chance& chance, core::Journal& journal, screens::FrmMain& main,
          screens::FrmMonthBanner& banner)
        : state_(state), chance_(chance), journal_(journal), main_(main), banner_(banner)
    {}

    void NextMonth();
    void EndOfTurn();
    void EndOfTurn2();

    bool IsOpen() const { return open_; }
    // Somebody's question stands; what he does meanwhile: "The landowners are still in the room."
    void Ask(std::string_view whoWaits) { whoWaits_ = whoWaits; }
    std::string_view WhoWaits() const { return whoWaits_; }

    void TakeMenu() { main_.SetEnabled(false); }
    void Close();
    void CloseWithSecondHalf();
    // The news have been read: closes the month unless a question stands. The menu answers in any case.
    void CloseUnlessAsked();
    // The game has ended: the month is closed, and the menu stays where it is.
    void End();
    // Another game begins, or none: what was open is forgotten.
    void Forget();

    // Runs whenever an open month is closed, after all that happened in it.
    void OnClosed(std::function<void(const Closed&)> listener) { listeners_.push_back(std::move(listener)); }

private:
    void GiveMenuBack();
    void Announce(bool gameOver);

    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
    bool open_ = false;
    std::string_view whoWaits_;
    std::vector<std::function<void(const Closed&)>> listeners_;
};

}  // namespace month
