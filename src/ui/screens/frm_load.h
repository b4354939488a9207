// frmLoad: which saved game is loaded.
#pragma once

#include "ui/screens/slot_form.h"

namespace screens {

struct FrmLoad : SlotForm {
    explicit FrmLoad(ui::Desktop& desktop) : SlotForm(desktop, {"frmLoad", "Load Game", "Empty slot", "Load"}) {}
};

}  // namespace screens
