// frmPolc: the chief of the police and those who would like to be.
#pragma once

#include "ui/screens/chief_table.h"

namespace screens {

struct FrmPolc : ChiefTable {
    explicit FrmPolc(ui::Stage& stage) : ChiefTable(stage, "frmPolc", "Police Chiefs") {}
};

}  // namespace screens
