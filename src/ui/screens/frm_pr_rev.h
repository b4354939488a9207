// frmPrRev: the prisoners have come out.
#pragma once

#include "ui/screens/poster.h"

namespace screens {

struct FrmPrRev : ui::Form {
    explicit FrmPrRev(ui::Stage& stage)
        : Form(stage, {.name = "frmPrRev", .rect = kPosterSheet, .decor = kPosterDecor, .asks = true})
    {}

    ui::Picture Image1{*this, "Image1", kPosterPicture, "Revolution", look::kPicture,
        {.picture = "images/prisoners.bmp"}};
    ui::Label Label1{*this, "Label1", {130, 337, 540, 62}, "PRISONERS'  REVOLUTION!", look::kPoster};
    ui::Label Label2{*this, "Label2", {120, 400, 560, 58},
        "Mr.President ,  we had riots in the prison. Many Prisoners escaped and joined by Workers and Peasants started a revolution!",
        look::kPosterText};
    ui::Label Label3{*this, "Label3", {120, 462, 560, 30}, "", look::kPosterText};
    ui::CommandButton Command1{*this, "Command1", kPosterLeftButton, "Flee the country!", look::kPosterButton};
    ui::CommandButton Command2{*this, "Command2", kPosterRightButton, "Stay and fight!", look::kPosterDangerButton};
};

}  // namespace screens
