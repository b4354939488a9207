// frmHandbook: the state handbook, a page of lines at a time.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kHandbookSheet{12, 58, 771, 529};
inline constexpr int kHandbookLines = 22;
inline constexpr int kHandbookLine = 19;
inline constexpr auto kHandbookRows = [] {
    std::array<ui::ElementRow, kHandbookLines> rows{};
    for (int line = 0; line < kHandbookLines; ++line) {
        rows[static_cast<std::size_t>(line)] = {
            line, {36, 106 + kHandbookLine * line, 730, kHandbookLine}, "", &look::kHandbookLine};
    }
    return rows;
}();
inline constexpr std::array kHandbookDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kHandbookSheet, "State handbook"},
    ui::Decor{ui::Decor::Kind::FootStrip, {12, 531, 771, 56}},
};

struct FrmHandbook : ui::Form {
    explicit FrmHandbook(ui::Stage& stage)
        : Form(stage, {.name = "frmHandbook", .rect = kHandbookSheet, .decor = kHandbookDecor, .own = true})
    {
        initialFocus = &cmdOn;
        cancelButton = &cmdClose;
    }

    ui::ControlArray<ui::Label> lblLine{*this, "lblLine", kHandbookRows};
    ui::CommandButton cmdBack{*this, "cmdBack", {36, 539, 150, 38}, "Page back", look::kButton};
    ui::CommandButton cmdOn{*this, "cmdOn", {200, 539, 150, 38}, "Page on", look::kButton};
    ui::Label lblPage{*this, "lblPage", {370, 545, 200, 26}, "", look::kSmallCaption};
    ui::CommandButton cmdClose{*this, "cmdClose", {616, 539, 150, 38}, "Close", look::kButton};
};

}  // namespace screens
