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

std::string Hex(ui::Color color);  // "F3E7C9"
// The shown ones, the front one first. Own screens come behind those that a player must know and before the
// backdrop, so that who looks only at the first screen finds the one that waits for him.
Json ListScreens(const ui::Desktop& desktop);
Json ListTimers(const ui::Desktop& desktop);  // the armed ones: milliseconds left
Json ValueOf(const core::Value& value);
Json ListState(const core::GameState& state);  // every element by its name
Json ListDraws(const std::vector<core::Chance::Drawn>& draws);
Json ListNotes(const std::vector<core::Note>& notes);

}  // namespace console
