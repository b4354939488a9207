// What the strip says instead of its warnings: that the game waits and for whom, and, in a player's first game, where
// a president looks first.
//
//     strip.guide = [this] { return guide_.Line(); };
//     desktop.onRefused = ...  strip.Say(guide_.WhyNot());
#pragma once

#include "core/game_state.h"
#include "month/month.h"
#include "office/settings.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <string>
#include <string_view>

namespace office {

class Guide {
public:
    Guide(const core::GameState& state, const ui::Desktop& desktop, const month::Month& month,
          const screens::Screens& screens)
        : state_(state), desktop_(desktop), month_(month), screens_(screens)
    {}

    bool firstSteps = false;
    // Empty when there is nothing to say.
    std::string_view Line() const;
    // Why the menu does not answer.
    std::string WhyNot() const;
    // Whether two of the screens were opened that tell how the country stands.
    bool KnowsTheWay() const;

private:
    const core::GameState& state_;
    const ui::Desktop& desktop_;
    const month::Month& month_;
    const screens::Screens& screens_;
};

}  // namespace office
