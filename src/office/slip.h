// The secretary's slip: laid on the desk when a month is closed and the desk is free, and gone with the first click.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "office/slip_rules.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <cstdint>
#include <vector>

namespace office {

class Slip {
public:
    Slip(const core::GameState& state, const ui::Desktop& desktop, screens::Screens& screens,
         const core::NumberFormat& format)
        : state_(state), desktop_(desktop), screens_(screens), format_(format)
    {}

    // A game begins, or another is loaded: what was before it is no news.
    void Begin();
    // Keeps what is needed and writes nothing yet: perhaps nobody looks.
    void MonthClosed(const std::vector<core::Note>& notes);
    // Lays the slip down where there is one to lay and room for it.
    void Refresh();

private:
    bool DeskIsFree() const;
    void Write();
    void WriteRow(int row);
    void WriteMoney(int row, std::int64_t before, std::int64_t after);

    const core::GameState& state_;
    const ui::Desktop& desktop_;
    screens::Screens& screens_;
    const core::NumberFormat& format_;
    Standing before_;
    Standing after_;
    std::vector<core::Note> notes_;
    bool waits_ = false;
    std::uint64_t closedAt_ = 0;  // Desktop::Uses when the month was closed
};

}  // namespace office
