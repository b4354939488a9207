// The chiefs of the police and of the army: the tables of officers, to look at and to choose from.
//
//     chiefs.NewPoliceChief([this] { ... });   // runs once the player has chosen
//
// A choice cannot be left without choosing; a table without candidates is renewed first, so that there
// always is one.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "media/cues.h"
#include "month/new_game.h"
#include "ui/screens/frm_army.h"
#include "ui/screens/frm_army_c.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_polc.h"
#include "ui/screens/frm_police.h"

#include <functional>
#include <string_view>

namespace instruments {

class Chiefs {
public:
    struct Screens {
        screens::FrmMonthBanner& frmMonthBanner;
        screens::FrmPolice& frmPolice;
        screens::FrmPolc& frmPolc;
        screens::FrmArmy& frmArmy;
        screens::FrmArmyC& frmArmyC;
    };
    Chiefs(core::GameState& state, core::Journal& journal, month::NewGame& newGame, Screens screens,
           media::Sound& sound);

    void NewPoliceChief(std::function<void()> afterwards = {});
    void NewArmyChief(std::function<void()> afterwards = {});

    std::function<void()> armyIn;  // the intelligence report, asked for on the army screen

private:
    struct Force {
        core::Group group;
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
    core::Journal& journal_;
    month::NewGame& newGame_;
    screens::FrmMonthBanner& banner_;
    media::Sound& sound_;
    Force police_;
    Force army_;
};

}  // namespace instruments
