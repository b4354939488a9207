// Explains what the player rests on, in one line at the foot of the screen.
//
//     desktop.onAttend = [this](const ui::Control* control, bool asked) { hints_.Attend(control, asked); };
//     hints.say = [this](const std::string& line) { ... };   // who asked for it hears it, too
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "ui/screens/screens.h"

#include <functional>
#include <string>
#include <string_view>

namespace office {

class Hints {
public:
    Hints(const core::GameState& state, screens::Screens& screens, const core::NumberFormat& format)
        : state_(state), screens_(screens), format_(format)
    {}

    bool on = true;  // off: only who asks is told
    // Null: he has looked away.
    void Attend(const ui::Control* control, bool asked);
    // A line in the same place, until something else is looked at.
    void Tell(std::string_view line);
    // Follows the strip, which comes and goes.
    void Refresh();

    std::function<void(const std::string&)> say;

private:
    const core::GameState& state_;
    screens::Screens& screens_;
    const core::NumberFormat& format_;
};

}  // namespace office
