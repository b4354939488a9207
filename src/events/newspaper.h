// The newspaper: shows a front page; "Oh!" closes it and with it the month, after the choice of a new chief where
// the story was that one is gone. While somebody's claim stands, only the menu comes back.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "month/month.h"
#include "ui/screens/frm_newspaper.h"

#include <functional>
#include <string_view>

namespace events {

// A front page, and what it says in a few words for the case that the page was not delivered.
struct Story {
    std::string_view picture;
    std::string_view words;
};

class Newspaper {
public:
    Newspaper(core::GameState& state, month::Month& month, screens::FrmNewspaper& page, media::Sound& sound);

    std::function<void(std::function<void()> afterwards)> newPoliceChief;
    std::function<void(std::function<void()> afterwards)> newArmyChief;

    // Shown without waiting.
    void Print(const Story& story);

private:
    void Close();

    core::GameState& state_;
    month::Month& month_;
    screens::FrmNewspaper& page_;
    media::Sound& sound_;
};

}  // namespace events
