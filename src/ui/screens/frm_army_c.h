// frmArmyC: the chief of the army and those who would like to be.
#pragma once

#include "ui/screens/chief_table.h"

namespace screens {

inline constexpr std::string_view kArmyChiefKey =
    "A chief of 6/3 has ability 6, ambition 3. Ability wins wars. Ambition from 6 on, in an army of strength "
    "40 or more, wins your chair.";

struct FrmArmyC : ChiefTable {
    explicit FrmArmyC(ui::Stage& stage) : ChiefTable(stage, "frmArmyC", "Army Chiefs", kArmyChiefKey) {}
};

}  // namespace screens
