// frmMain: the bar along the top with the six commands, and the clockwork of the month.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

enum MenuItem { kMenuActions, kMenuTaxes, kMenuPolice, kMenuArmy, kMenuNextMonth, kMenuOptions, kMenuItems };

inline constexpr ui::Rect MenuPlace(int item)
{
    return {1 + 133 * item, 0, 133, 48};
}

// clang-format off
inline constexpr std::array<ui::ElementRow, kMenuItems> kMenuRows{{
    // item          place                         when the picture is missing
    {kMenuActions,   MenuPlace(kMenuActions),   "Actions",    &look::kPicture, {.tabStop = true, .picture = "images/0b.bmp"}},
    {kMenuTaxes,     MenuPlace(kMenuTaxes),     "Taxes",      &look::kPicture, {.tabStop = true, .picture = "images/1b.bmp"}},
    {kMenuPolice,    MenuPlace(kMenuPolice),    "Police",     &look::kPicture, {.tabStop = true, .picture = "images/2b.bmp"}},
    {kMenuArmy,      MenuPlace(kMenuArmy),      "Army",       &look::kPicture, {.tabStop = true, .picture = "images/3b.bmp"}},
    {kMenuNextMonth, MenuPlace(kMenuNextMonth), "Next month", &look::kPicture, {.tabStop = true, .picture = "images/4b.bmp"}},
    {kMenuOptions,   MenuPlace(kMenuOptions),   "Options",    &look::kPicture, {.tabStop = true, .picture = "images/5b.bmp"}},
}};
// clang-format on

// The key whose screen is open hangs from a bar with a point: the lit key is the one last pointed at.
inline constexpr ui::Rect OpenBar(int item) { return {MenuPlace(item).left + 2, 0, 129, 4}; }
inline constexpr ui::Rect OpenPoint(int item) { return {MenuPlace(item).left + 58, 2, 16, 12}; }

inline constexpr std::array kMainDecor{
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {0, 48, 800, 1}, .color = ui::Rgb(0x3A2A0C)},
};

struct FrmMain : ui::Form {
    explicit FrmMain(ui::Stage& stage)
        : Form(stage, {.name = "frmMain", .caption = "Quenvale", .rect = {0, 0, 800, 50}, .decor = kMainDecor, .opaque = true})
    {}

    ui::ControlArray<ui::Picture> Label5{*this, "Label5", kMenuRows};

    ui::Shape shpOpenBar{*this, "shpOpenBar", OpenBar(0), "", look::kShape, {.visible = false}};
    ui::Shape shpOpenPoint{*this, "shpOpenPoint", OpenPoint(0), "", look::kShape,
        {.visible = false, .mark = ui::Mark::Down}};

    // One-shot pauses, so that the player can read: what each continues with is wired by its owner.
    ui::Timer Timer1{*this, "Timer1"};  // the month's events
    ui::Timer Timer2{*this, "Timer2"};  // the flight's outcome
    ui::Timer Timer3{*this, "Timer3"};  // the battle
    ui::Timer Timer4{*this, "Timer4"};  // the hall of fame
    ui::Timer Timer5{*this, "Timer5"};  // the assassination attempt
    ui::Timer Timer6{*this, "Timer6"};  // the death message
};

}  // namespace screens
