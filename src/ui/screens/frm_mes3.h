// frmMes3: a chief has betrayed the president.
#pragma once

#include "ui/screens/message_box.h"

namespace screens {

struct FrmMes3 : ui::Form {
    explicit FrmMes3(ui::Stage& stage)
        : Form(stage, {.name = "frmMes3", .rect = kMessageSheet, .decor = kMessageDecor, .asks = true})
    {
        initialFocus = &Command1;
        defaultButton = &Command1;
        cancelButton = &Command1;
    }

    ui::Label Label1{*this, "Label1", kMessageText, "", look::kMessageBox};
    ui::CommandButton Command1{*this, "Command1", kMessageButton, "Ooops!", look::kButton};
};

}  // namespace screens
