// frmGameLoaded: the figures of the game that was loaded.
#pragma once

#include "ui/screens/figures_form.h"

namespace screens {

struct FrmGameLoaded : FiguresForm {
    explicit FrmGameLoaded(ui::Stage& stage) : FiguresForm(stage, "frmGameLoaded", "Game Loaded ") {}
};

}  // namespace screens
