// frmOptions: what the player may do beside governing. Yellow cards; the one under the pointer is inverted.
//
// Beside the cards is room for what the banner says, because the menu stays up while the manual is opened and
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

// A drawer of the card index: those of Label5, the chronicle and the settings. They stand 42 apart, and the drawer's front moves
// with their number; a card has room at its left to be drawn out by.
inline constexpr int kCards = kOptionItems + 2;
inline constexpr int kCardsTop = 97;
inline constexpr int kCardPitch = 42;
inline constexpr int kDrawerFront = kCardsTop + kCardPitch * kCards + 2;
inline constexpr ui::Rect OptionPlace(int place)
{
    return {564, kCardsTop + kCardPitch * place, 216, 38};
}
inline constexpr ui::Rect kOptionsSheet{556, 54, 236, kDrawerFront - 54 + 10};
inline constexpr ui::Rect kDrawerWood{552, kDrawerFront, 244, 34};

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
    ui::Decor{ui::Decor::Kind::SecretSheet, kOptionsSheet, "Card index"},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = kDrawerWood, .color = look::kWoodEdge},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = kDrawerWood.Grown(-2), .color = look::kWood},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {578, kDrawerFront + 12, 10, 10}, .color = look::kBrass},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {760, kDrawerFront + 12, 10, 10}, .color = look::kBrass},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {614, kDrawerFront + 5, 120, 24}, .color = look::kBrass},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {616, kDrawerFront + 7, 116, 20}, .color = look::kSecret},
    ui::Decor{ui::Decor::Kind::Caption, {646, kDrawerFront + 5, 80, 24}, "Options"},
};

struct FrmOptions : ui::Form {
    explicit FrmOptions(ui::Stage& stage)
        : Form(stage, {.name = "frmOptions", .rect = {330, 54, 466, 508}, .decor = kOptionsDecor})
    {}

    ui::ControlArray<ui::Label> Label5{*this, "Label5", kOptionRows};
    ui::Label lblChronicle{*this, "lblChronicle", OptionPlace(kOptionItems), "Chronicle", look::kYellowKey,
        {.tabStop = true, .back = look::kYellow}};
    ui::Label lblSettings{*this, "lblSettings", OptionPlace(kOptionItems + 1), "Settings", look::kYellowKey,
        {.tabStop = true, .back = look::kYellow}};
    ui::Label Label1{*this, "Label1", {334, 440, 208, 114}, "", look::kAside, {.back = look::kBlack}};
    // Where a viewer inside the screen would show the manual; the platform's own viewer does it.
    ui::Shape OLE1{*this, "OLE1", {560, 58, 1, 1}, "", look::kShape, {.visible = false}};
};

}  // namespace screens
