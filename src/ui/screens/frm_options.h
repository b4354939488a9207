// frmOptions: what the player may do beside governing. Yellow keys; the one under the pointer is inverted.
//
// Below the keys is room for what the banner says, because the menu stays up while the manual is opened and
// hides the banner.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

// By the index of Label5; the places on the screen are in another order.
enum OptionItem {
    kOptionRestart,
    kOptionAbout,
    kOptionQuit,
    kOptionHelp,
    kOptionHistory,
    kOptionTopTen,
    kOptionSave,
    kOptionLoad,
    kOptionItems,
};

inline constexpr ui::Rect kOptionsSheet{560, 58, 228, 412};
inline constexpr ui::Rect OptionPlace(int place)
{
    return {568, 66 + 44 * place, 212, 41};
}

inline constexpr std::array<ui::ElementRow, kOptionItems> kOptionRows{{
    // item           place            caption
    {kOptionHistory, OptionPlace(0), "History",   &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionTopTen,  OptionPlace(1), "Top 10",    &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionHelp,    OptionPlace(2), "Help",      &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionSave,    OptionPlace(3), "Save Game", &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionLoad,    OptionPlace(4), "Load Game", &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionRestart, OptionPlace(5), "Restart",   &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionAbout,   OptionPlace(6), "About",     &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
    {kOptionQuit,    OptionPlace(7), "Quit",      &look::kYellowKey, {.tabStop = true, .back = look::kYellow}},
}};

inline constexpr std::array kOptionsDecor{
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = kOptionsSheet, .color = look::kBrass},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = kOptionsSheet.Grown(-2), .color = look::kBlack},
};

struct FrmOptions : ui::Form {
    explicit FrmOptions(ui::Stage& stage)
        : Form(stage, {.name = "frmOptions", .rect = {560, 58, 228, 530}, .decor = kOptionsDecor})
    {}

    ui::ControlArray<ui::Label> Label5{*this, "Label5", kOptionRows};
    ui::Label lblSettings{*this, "lblSettings", OptionPlace(8), "Settings", look::kYellowKey,
        {.tabStop = true, .back = look::kYellow}};
    ui::Label Label1{*this, "Label1", {562, 478, 224, 110}, "", look::kAside};
    // Where a viewer inside the screen would show the manual; the platform's own viewer does it.
    ui::Shape OLE1{*this, "OLE1", {560, 58, 1, 1}, "", look::kShape, {.visible = false}};
};

}  // namespace screens
