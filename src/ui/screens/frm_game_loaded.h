// frmGameLoaded: the figures of the game that was loaded.
#pragma once

#include "ui/screens/figures_form.h"

namespace screens {

struct FrmGameLoaded : FiguresForm {
    explicit FrmGameLoaded(ui::Desktop& desktop) : FiguresForm(desktop, "frmGameLoaded", "Game Loaded ") {}
};

}  // namespace screens
