// frmArmyC: the chief of the army and those who would like to be.
#pragma once

#include "ui/screens/chief_table.h"

namespace screens {

struct FrmArmyC : ChiefTable {
    explicit FrmArmyC(ui::Stage& stage) : ChiefTable(stage, "frmArmyC", "Army Chiefs") {}
};

}  // namespace screens
