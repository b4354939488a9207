// frmSave: which slot the game is saved to, and under which name.
#pragma once

#include "ui/screens/slot_form.h"

namespace screens {

struct FrmSave : SlotForm {
    explicit FrmSave(ui::Stage& stage) : SlotForm(stage, {"frmSave", "Save Game", "", "Save"}) {}
};

}  // namespace screens
