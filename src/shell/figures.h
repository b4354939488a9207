// Fills a sheet with the president's figures; what stands as the total score is the sheet's own affair.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "ui/screens/figures_form.h"

#include <string_view>

namespace shell {

void ShowFigures(screens::FiguresForm& sheet, const core::GameState& state, const core::NumberFormat& format,
                 std::string_view score);

}  // namespace shell
