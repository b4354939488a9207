// The police report: refused on the banner, or shown as it stood when it was asked for.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_police.h"

namespace instruments {

class PoliceReport {
public:
    PoliceReport(core::GameState& state, screens::FrmPolice& police, screens::FrmMonthBanner& banner,
                 const core::NumberFormat& format)
        : state_(state), police_(police), banner_(banner), format_(format)
    {}

    void Open();
    void Ref();  // counts and writes every cell, in no particular colour

private:
    void ShowGroup(core::Group group);
    void ShowYourArmy();
    void ShowCountry();
    void Colour();
    void ColourCountry();

    core::GameState& state_;
    screens::FrmPolice& police_;
    screens::FrmMonthBanner& banner_;
    const core::NumberFormat& format_;
};

}  // namespace instruments
