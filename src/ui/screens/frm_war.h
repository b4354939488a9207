// frmWAR: how the war ended. It stays until the next menu command.
#pragma once

#include "ui/screens/poster.h"

namespace screens {

inline constexpr ui::Rect kWarSheet{87, 115, 626, 376};
inline constexpr std::array kWarDecor{
    ui::Decor{ui::Decor::Kind::PosterSheet, kWarSheet},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {90, 368, 620, 4}, .color = look::kOchre},
};

struct FrmWAR : ui::Form {
    explicit FrmWAR(ui::Stage& stage)
        : Form(stage, {.name = "frmWAR", .rect = kWarSheet, .decor = kWarDecor})
    {}

    ui::Picture Image1{*this, "Image1", {90, 118, 620, 250}, "The war", look::kPicture,
        {.picture = "images/war.bmp"}};
    ui::Label Label1{*this, "Label1", {120, 384, 560, 92}, "", look::kPosterText};
};

}  // namespace screens
