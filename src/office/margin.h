// What the office writes into the margin of the State's forms, beside what they must say: what stands now before
// each change on a card, its money, and what the action was called; who makes an offer; what a chief's two figures
// are; what "might join" means; which key of the menu belongs to the open screen.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

namespace office {

class Margin {
public:
    Margin(const core::GameState& state, const ui::Desktop& desktop, screens::Screens& screens,
           const core::NumberFormat& format)
        : state_(state), desktop_(desktop), screens_(screens), format_(format)
    {}

    // Follows the record and the screens that are shown.
    void Refresh();

private:
    void OnCard(screens::CardForm& card, bool action);
    void OnChiefs();
    void OnMenu();

    const core::GameState& state_;
    const ui::Desktop& desktop_;
    screens::Screens& screens_;
    const core::NumberFormat& format_;
};

}  // namespace office
