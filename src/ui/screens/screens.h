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
#include "ui/screens/frm_g_rev.h"
#include "ui/screens/frm_game_loaded.h"
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
#include "ui/screens/frm_show.h"
#include "ui/screens/frm_show2.h"
#include "ui/screens/frm_start.h"
#include "ui/screens/frm_taxes.h"
#include "ui/screens/frm_top_102.h"
#include "ui/screens/frm_usa.h"
#include "ui/screens/frm_war.h"

namespace screens {

struct Screens {
    explicit Screens(ui::Desktop& desktop) : desktop_(desktop) {}

private:
    ui::Desktop& desktop_;

public:
    // The shell.
    Frmlogo frmlogo{desktop_};
    FrmStart frmStart{desktop_};
    FrmName frmName{desktop_};
    FrmAbout frmAbout{desktop_};

    // The frame of every game.
    FrmMonthBanner frmMonthBanner{desktop_};
    FrmMain frmMain{desktop_};
    FrmArmy frmArmy{desktop_};

    // The president's instruments.
    FrmTaxes frmTaxes{desktop_};
    FrmBank frmBank{desktop_};
    FrmPolice frmPolice{desktop_};
    FrmPolc frmPolc{desktop_};
    FrmArmyC frmArmyC{desktop_};
    FrmMes3 frmMes3{desktop_};

    // What the president does, and what is done to him.
    FrmActions frmActions{desktop_};
    FrmShow frmShow{desktop_};
    FrmShow2 frmShow2{desktop_};
    FrmNewspaper frmNewspaper{desktop_};
    FrmRandom2 frmRandom2{desktop_};
    FrmUSA frmUSA{desktop_};

    // Options, saved games, the hall of fame.
    FrmOptions frmOptions{desktop_};
    FrmHistory frmHistory{desktop_};
    FrmSave frmSave{desktop_};
    FrmLoad frmLoad{desktop_};
    FrmGameLoaded frmGameLoaded{desktop_};
    FrmTop102 frmTop102{desktop_};

    // The threats.
    FrmMes frmMes{desktop_};
    FrmAFailed frmAFailed{desktop_};
    FrmMes1 frmMes1{desktop_};
    FrmRev frmRev{desktop_};
    FrmGRev frmGRev{desktop_};
    FrmPrRev frmPrRev{desktop_};
    FrmChoose frmChoose{desktop_};
    FrmMes2 frmMes2{desktop_};
    FrmWAR frmWAR{desktop_};
    FrmAIN frmAIN{desktop_};
};

}  // namespace screens
