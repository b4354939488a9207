// What a hint is asked of: a control, as the record stands.
#pragma once

#include "core/game_state.h"
#include "core/numbers.h"
#include "ui/toolkit/control.h"

namespace office {

struct Question {
    const ui::Control& control;
    const core::GameState& state;
    const core::NumberFormat& format;
};

}  // namespace office
