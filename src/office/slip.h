// The secretary's slip: laid on the desk when a month is over and the desk is free, and gone with the first click. It
// compares with the moment in which the president ended the month, so that it tells what others have done.
#pragma once

#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "office/slip_rules.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <vector>

namespace office {

class Slip {
public:
    Slip(const core::GameState& state, core::Journal& journal, screens::Screens& screens,
         const ui::Desktop& desktop, const core::NumberFormat& format);

    // Lays the slip down where there is one to lay and room for it; until then nothing is written.
    void Refresh();

private:
    bool DeskIsFree() const;
    void Write();
    void WriteRow(int row);
    void WriteMoney(int row, std::int64_t before, std::int64_t after);

    void Note(const core::Note& note);

    const core::GameState& state_;
    screens::Screens& screens_;
    const ui::Desktop& desktop_;
    const core::NumberFormat& format_;
    Standing before_;
    Standing after_;
    std::vector<core::Note> notes_;
    bool waits_ = false;
};

}  // namespace office
