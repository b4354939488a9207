// frmActions: the presidential actions, a button each. The index of a button is the action's number.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kActionsSheet{40, 58, 715, 530};
inline constexpr std::array kActionsDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kActionsSheet, "Presidential actions"},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {397, 110, 1, 466}, .color = look::kRule},
};

// Twelve rows in pairs, in two columns.
inline constexpr ui::Rect ActionPlace(int column, int row)
{
    return {column == 0 ? 54 : 405, 112 + row / 2 * 79 + row % 2 * 36, 336, 32};
}
// Two buttons were never given a place on the sheet.
inline constexpr ui::Rect ActionNowhere(int column)
{
    return {ActionPlace(column, 0).left, 600, 336, 32};
}

// clang-format off
inline constexpr std::array<ui::ElementRow, 26> kActionRows{{
    // no  place              caption                              style                     sign
    { 0, ActionNowhere(0),   "Increase Education expenses",         &look::kListButton,       {.visible = false, .mark = ui::Mark::Up}},
    { 1, ActionPlace(0,  0), "Decrease  Education  expenses",       &look::kListButton,       {.mark = ui::Mark::Down}},
    { 2, ActionPlace(0,  1), "Increase  Education expenses",        &look::kListButton,       {.mark = ui::Mark::Up}},
    { 3, ActionPlace(0,  2), "Decrease  Health  expenses",          &look::kListButton,       {.mark = ui::Mark::Down}},
    { 4, ActionPlace(0,  3), "Increase  Health  expenses",          &look::kListButton,       {.mark = ui::Mark::Up}},
    { 5, ActionPlace(0,  4), "Decrease  Allowances",                &look::kListButton,       {.mark = ui::Mark::Down}},
    { 6, ActionPlace(0,  5), "Increase  Allowances",                &look::kListButton,       {.mark = ui::Mark::Up}},
    { 7, ActionPlace(0,  6), "Decrease  Army  funds",               &look::kListButton,       {.mark = ui::Mark::Down}},
    { 8, ActionPlace(0,  7), "Increase  Army  funds",               &look::kListButton,       {.mark = ui::Mark::Up}},
    { 9, ActionPlace(0,  8), "Decrease  Police  funds",             &look::kListButton,       {.mark = ui::Mark::Down}},
    {10, ActionPlace(0,  9), "Increase  Police  funds",             &look::kListButton,       {.mark = ui::Mark::Up}},
    {11, ActionPlace(0, 10), "Decrease Unemployment Benefits",      &look::kListButton,       {.mark = ui::Mark::Down}},
    {12, ActionPlace(0, 11), "Increase Unemployment Benefits",      &look::kListButton,       {.mark = ui::Mark::Up}},
    {14, ActionPlace(1,  0), "Sack Army Chief !",                   &look::kListButton,       {.mark = ui::Mark::Star}},
    {13, ActionPlace(1,  1), "Sack Police Chief !",                 &look::kListButton,       {.mark = ui::Mark::Star}},
    {15, ActionPlace(1,  2), "Sell an island for 150.000.000$!",    &look::kListButton,       {.mark = ui::Mark::Star}},
    {16, ActionPlace(1,  3), "Increase your Personal Army.",        &look::kListButton,       {.mark = ui::Mark::Star}},
    {17, ActionPlace(1,  4), "Run a Personal Campaing!",            &look::kListButton,       {.mark = ui::Mark::Star}},
    {18, ActionPlace(1,  5), "Attack the Guerillas!",               &look::kDangerListButton, {.mark = ui::Mark::Star}},
    {24, ActionPlace(1,  6), "Ask Americans for an aid!",           &look::kListButton,       {.mark = ui::Mark::Star}},
    {25, ActionPlace(1,  7), "Buy an escape helicopter!",           &look::kListButton,       {.mark = ui::Mark::Star}},
    {19, ActionPlace(1,  8), "Execute all the Prisoners!",          &look::kDangerListButton, {.mark = ui::Mark::Star}},
    {20, ActionPlace(1,  9), "Release all the Prisoners!",          &look::kListButton,       {.mark = ui::Mark::Star}},
    {21, ActionPlace(1, 10), "Arrest your enemies!",                &look::kDangerListButton, {.mark = ui::Mark::Star}},
    {22, ActionPlace(1, 11), "Kiss Americans ass!",                 &look::kListButton,       {.mark = ui::Mark::Star}},
    {23, ActionNowhere(1),   " ",                                   &look::kListButton,       {.visible = false, .mark = ui::Mark::Star}},
}};
// clang-format on

struct FrmActions : ui::Form {
    explicit FrmActions(ui::Stage& stage)
        : Form(stage, {.name = "frmActions", .rect = kActionsSheet, .decor = kActionsDecor})
    {
        initialFocus = &Command1[1];
    }

    ui::ControlArray<ui::CommandButton> Command1{*this, "Command1", kActionRows};
};

}  // namespace screens
