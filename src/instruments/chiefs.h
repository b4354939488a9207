// The chiefs of the police and of the army: the tables of officers, to look at and to choose from.
//
//     chiefs.NewPoliceChief([this] { ... });   // runs once the player has chosen
//
// A choice cannot be left without choosing; a table without candidates is renewed first, so that there
// always is one.
#pragma once

#include "core/game_state.h"
#include "core/new_game.h"
#include "media/cues.h"
#include "ui/screens/screens.h"

#include <functional>
#include <string_view>

namespace instruments {

class Chiefs {
public:
    Chiefs(core::GameState& state, core::NewGame& newGame, screens::Screens& screens, media::Sound& sound);

    void NewPoliceChief(std::function<void()> afterwards = {});
    void NewArmyChief(std::function<void()> afterwards = {});

    std::function<void()> armyIn;  // the intelligence report, asked for on the army screen

private:
    struct Force {
        core::OfficerTable& table;
        screens::ChiefTable& screen;
        std::string_view choosing;   // the title while a chief is chosen, and the sign that he may be
        std::string_view viewing;    // the title otherwise
        std::string_view appointed;  // said behind the new chief's name
    };

    void View(Force& force, ui::Form& caller);
    void NewChief(Force& force, std::function<void()> afterwards);
    void Choose(Force& force, int index);
    static bool IsChoosing(const Force& force);
    static void Fill(Force& force);

    core::GameState& state_;
    core::NewGame& newGame_;
    screens::FrmMonthBanner& banner_;
    media::Sound& sound_;
    Force police_;
    Force army_;
};

}  // namespace instruments
