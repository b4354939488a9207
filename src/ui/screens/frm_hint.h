// frmHint: one line about the thing that the player rests on, at the foot of the screen or above the strip.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr int kHintHeight = 21;
constexpr ui::Rect HintPlace(int bottom) { return {0, bottom - kHintHeight, ui::kSpaceWidth, kHintHeight}; }
constexpr ui::Rect HintText(int bottom) { return {8, bottom - kHintHeight + 1, ui::kSpaceWidth - 16, kHintHeight - 2}; }

struct FrmHint : ui::Form {
    explicit FrmHint(ui::Stage& stage)
        : Form(stage, {.name = "frmHint", .rect = HintPlace(ui::kSpaceHeight), .back = look::kSecret, .opaque = true,
                       .own = true, .note = true})
    {}

    ui::Label lblHint{*this, "lblHint", HintText(ui::kSpaceHeight), "", look::kHint};
};

}  // namespace screens
