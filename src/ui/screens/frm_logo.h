// frmlogo: the title picture. One big button.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

namespace screens {

struct Frmlogo : ui::Form {
    explicit Frmlogo(ui::Stage& stage)
        : Form(stage, {.name = "frmlogo", .caption = "Quenvale", .rect = ui::kSpace, .opaque = true})
    {}

    ui::Picture Image1{*this, "Image1", ui::kSpace, "Quenvale", look::kPicture,
        {.picture = "images/title.bmp"}};
    ui::Label Label3{*this, "Label3", {682, 572, 100, 22}, "v.2.1.1", look::kVersion};
};

}  // namespace screens
