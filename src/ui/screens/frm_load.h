// frmLoad: which saved game is loaded.
#pragma once

#include "ui/screens/slot_form.h"

namespace screens {

struct FrmLoad : SlotForm {
    explicit FrmLoad(ui::Stage& stage) : SlotForm(stage, {"frmLoad", "Load Game", "Empty slot", "Load"}) {}
};

}  // namespace screens
