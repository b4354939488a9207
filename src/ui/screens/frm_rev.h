// frmRev: a revolution, or a chief's coup. Modal; the palace is in nobody's hands until it is answered.
#pragma once

#include "ui/screens/poster.h"

namespace screens {

struct FrmRev : ui::Form {
    explicit FrmRev(ui::Stage& stage)
        : Form(stage, {.name = "frmRev", .rect = kPosterSheet, .decor = kPosterDecor, .asks = true})
    {}

    ui::Picture Image1{*this, "Image1", kPosterPicture, "Revolution", look::kPicture,
        {.picture = "images/revolution.bmp"}};
    ui::Label Label1{*this, "Label1", {110, 329, 580, 92}, "REVOLUTION!", look::kPoster};
    ui::Label Label2{*this, "Label2", {105, 420, 590, 74}, "", look::kPosterText};
    ui::CommandButton Command1{*this, "Command1", kPosterLeftButton, "Flee the country!", look::kPosterButton};
    ui::CommandButton Command2{*this, "Command2", kPosterRightButton, "Stay and fight!", look::kPosterDangerButton};
};

}  // namespace screens
