// frmHistory: the running game's figures and what they are worth so far.
#pragma once

#include "ui/screens/figures_form.h"

namespace screens {

struct FrmHistory : FiguresForm {
    explicit FrmHistory(ui::Stage& stage)
        : FiguresForm(stage, "frmHistory", "Mr.President's History and Score")
    {}
};

}  // namespace screens
