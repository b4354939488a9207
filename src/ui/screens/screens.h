// All screens of the game. Each exists once; their order here is the order in which timers of the same
// moment fire and in which the tests walk through them.
#pragma once

#include "ui/screens/frm_a_failed.h"
#include "ui/screens/frm_about.h"
#include "ui/screens/frm_actions.h"
#include "ui/screens/frm_ain.h"
#include "ui/screens/frm_army.h"
#include "ui/screens/frm_army_c.h"
#include "ui/screens/frm_bank.h"
#include "ui/screens/frm_choose.h"
#include "ui/screens/frm_chronicle.h"
#include "ui/screens/frm_farewell.h"
#include "ui/screens/frm_g_rev.h"
#include "ui/screens/frm_game_loaded.h"
#include "ui/screens/frm_handbook.h"
#include "ui/screens/frm_hint.h"
#include "ui/screens/frm_history.h"
#include "ui/screens/frm_load.h"
#include "ui/screens/frm_logo.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_mes.h"
#include "ui/screens/frm_mes1.h"
#include "ui/screens/frm_mes2.h"
#include "ui/screens/frm_mes3.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_name.h"
#include "ui/screens/frm_newspaper.h"
#include "ui/screens/frm_options.h"
#include "ui/screens/frm_polc.h"
#include "ui/screens/frm_police.h"
#include "ui/screens/frm_pr_rev.h"
#include "ui/screens/frm_random2.h"
#include "ui/screens/frm_rev.h"
#include "ui/screens/frm_save.h"
#include "ui/screens/frm_settings.h"
#include "ui/screens/frm_show.h"
#include "ui/screens/frm_show2.h"
#include "ui/screens/frm_slip.h"
#include "ui/screens/frm_start.h"
#include "ui/screens/frm_strip.h"
#include "ui/screens/frm_taxes.h"
#include "ui/screens/frm_top_102.h"
#include "ui/screens/frm_usa.h"
#include "ui/screens/frm_war.h"

namespace screens {

struct Screens {
    explicit Screens(ui::Stage& stage) : stage_(stage) {}

private:
    ui::Stage& stage_;

public:
    // The shell.
    Frmlogo frmlogo{stage_};
    FrmStart frmStart{stage_};
    FrmName frmName{stage_};
    FrmAbout frmAbout{stage_};

    // The frame of every game.
    FrmMonthBanner frmMonthBanner{stage_};
    FrmMain frmMain{stage_};
    FrmArmy frmArmy{stage_};

    // The president's instruments.
    FrmTaxes frmTaxes{stage_};
    FrmBank frmBank{stage_};
    FrmPolice frmPolice{stage_};
    FrmPolc frmPolc{stage_};
    FrmArmyC frmArmyC{stage_};
    FrmMes3 frmMes3{stage_};

    // What the president does, and what is done to him.
    FrmActions frmActions{stage_};
    FrmShow frmShow{stage_};
    FrmShow2 frmShow2{stage_};
    FrmNewspaper frmNewspaper{stage_};
    FrmRandom2 frmRandom2{stage_};
    FrmUSA frmUSA{stage_};

    // Options, saved games, the hall of fame.
    FrmOptions frmOptions{stage_};
    FrmHistory frmHistory{stage_};
    FrmSave frmSave{stage_};
    FrmLoad frmLoad{stage_};
    FrmGameLoaded frmGameLoaded{stage_};
    FrmTop102 frmTop102{stage_};

    // The threats.
    FrmMes frmMes{stage_};
    FrmAFailed frmAFailed{stage_};
    FrmMes1 frmMes1{stage_};
    FrmRev frmRev{stage_};
    FrmGRev frmGRev{stage_};
    FrmPrRev frmPrRev{stage_};
    FrmChoose frmChoose{stage_};
    FrmMes2 frmMes2{stage_};
    FrmWAR frmWAR{stage_};
    FrmAIN frmAIN{stage_};

    // What stands beside the game.
    FrmStrip frmStrip{stage_};
    FrmSlip frmSlip{stage_};
    FrmFarewell frmFarewell{stage_};
    FrmSettings frmSettings{stage_};
    FrmChronicle frmChronicle{stage_};
    FrmHandbook frmHandbook{stage_};
    FrmHint frmHint{stage_};
};

}  // namespace screens
