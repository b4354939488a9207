// frmMes1: justice has been done.
#pragma once

#include "ui/screens/message_box.h"

namespace screens {

struct FrmMes1 : ui::Form {
    explicit FrmMes1(ui::Stage& stage)
        : Form(stage, {.name = "frmMes1", .rect = kMessageSheet, .decor = kMessageDecor, .asks = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Label Label1{*this, "Label1", kMessageText, "", look::kMessageBox};
    ui::CommandButton Command1{*this, "Command1", kMessageButton, "Ok", look::kButton};
};

}  // namespace screens
