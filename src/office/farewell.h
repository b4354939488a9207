// El Faro says farewell: the last page, when a game has ended and the hall of fame has been shown.
//
//     farewell.Print(place, "4,236");         // in front of the hall; the journal has told how it was
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "media/cues.h"
#include "office/farewell_rules.h"
#include "ui/screens/frm_farewell.h"

#include <optional>
#include <string_view>

namespace office {

// The page's words and picture, without the last line of the black frame.
void PrintPage(screens::FrmFarewell& form, const FarewellPage& page, const Obituary& of,
               const core::NumberFormat& format);

class Farewell {
public:
    Farewell(const core::GameState& state, core::Journal& journal, screens::FrmFarewell& page,
             media::Sound& sound, const core::NumberFormat& format);

    // Place among the ten, from 0; -1 is none. Points as the hall shows them.
    void Print(int place, std::string_view points);

private:
    const core::GameState& state_;
    screens::FrmFarewell& page_;
    const core::NumberFormat& format_;
    std::optional<Obituary> ended_;
};

}  // namespace office
