// frmRandom2: a proposal that somebody puts to the president. It waits, even beside the newspaper.
#pragma once

#include "ui/screens/message_box.h"

namespace screens {

struct FrmRandom2 : ui::Form {
    explicit FrmRandom2(ui::Stage& stage)
        : Form(stage, {.name = "frmRandom2", .rect = kMessageSheet, .decor = kMessageDecor, .asks = true})
    {}

    ui::Label Label1{*this, "Label1", kMessageText, "", look::kMessageBox};
    ui::CommandButton Command1{*this, "Command1", kMessageLeftButton, "Do it!", look::kButton};
    ui::CommandButton Command2{*this, "Command2", kMessageRightButton, "Never!", look::kButton};
};

}  // namespace screens
