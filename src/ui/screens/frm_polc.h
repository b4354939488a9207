// frmPolc: the chief of the police and those who would like to be.
#pragma once

#include "ui/screens/chief_table.h"

namespace screens {

inline constexpr std::string_view kPoliceChiefKey =
    "A chief of 6/3 has ability 6, ambition 3. Ability finds things out. Ambition from 6 on, in a police "
    "force of strength 25 or more, finds your chair.";

struct FrmPolc : ChiefTable {
    explicit FrmPolc(ui::Stage& stage) : ChiefTable(stage, "frmPolc", "Police Chiefs", kPoliceChiefKey) {}
};

}  // namespace screens
