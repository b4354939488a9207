// The newspaper: shows a front page; "Oh!" closes it and gives the main screen back, after the choice of a
// new chief where the story was that one is gone.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>
#include <string_view>

namespace events {

// A front page, and what it says in a few words for the case that the page was not delivered.
struct Story {
    std::string_view picture;
    std::string_view words;
};

// What NewsKind says: who has to be replaced when the newspaper is closed.
enum NewsKind : std::int64_t { kPlainNews = 0, kArmyChiefGone = 1, kPoliceChiefGone = 2 };

class Newspaper {
public:
    Newspaper(core::GameState& state, screens::FrmNewspaper& page, screens::FrmMain& main,
              media::Sound& sound);

    std::function<void(std::function<void()> afterwards)> newPoliceChief;
    std::function<void(std::function<void()> afterwards)> newArmyChief;

    // Shown without waiting.
    void Print(const Story& story);

private:
    void Close();

    core::GameState& state_;
    screens::FrmNewspaper& page_;
    screens::FrmMain& main_;
    media::Sound& sound_;
};

}  // namespace events
