// The edge of the desk: shows what StripOf tells wherever no dialog needs the place.
//
//     strip.Say("The menu waits: the landowners are still in the room.");   // until the player does something
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "office/strip_rules.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace office {

class StatusStrip {
public:
    StatusStrip(const core::GameState& state, const ui::Desktop& desktop, screens::Screens& screens,
                const core::NumberFormat& format)
        : state_(state), desktop_(desktop), screens_(screens), format_(format)
    {}

    // Follows the record and the dialogs.
    void Refresh();

    // One line of help or of refusal in the warnings' place, until the player uses a screen. At most about ninety
    // letters.
    void Say(std::string_view line);
    // What else is said there; empty: nothing.
    std::function<std::string_view()> guide;
    // Whether there is a place to say it.
    bool Shown() const { return screens_.frmStrip.Visible(); }

private:
    bool HasThePlace() const;
    void ShowFigures(const Strip& facts);
    void ShowFavour(const Strip& facts);
    void ShowWarnings(Strip facts);

    const core::GameState& state_;
    const ui::Desktop& desktop_;
    screens::Screens& screens_;
    const core::NumberFormat& format_;
    std::string said_;
    std::uint64_t saidAt_ = 0;  // Desktop::Uses when the line was said
    bool waited_ = false;       // the menu did not answer then
};

}  // namespace office
