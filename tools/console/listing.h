// The game as JSON: screens, timers, the record.
#pragma once

#include "console/reply.h"
#include "core/chance.h"
#include "core/fields.h"
#include "core/journal.h"
#include "ui/toolkit/desktop.h"

#include <string>
#include <vector>

namespace console {

std::string Hex(ui::Color color);              // "F3E7C9"
Json ListScreens(const ui::Desktop& desktop);  // the shown ones, the front one first
Json ListTimers(const ui::Desktop& desktop);   // the armed ones: milliseconds left
Json ValueOf(const core::Value& value);
Json ListState(const core::GameState& state);  // every element by its name
Json ListDraws(const std::vector<core::Chance::Drawn>& draws);
Json ListNotes(const std::vector<core::Note>& notes);

}  // namespace console
