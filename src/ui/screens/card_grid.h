// What the screens of an action card (frmShow) and of a request card (frmShow2) have in common: the table
// of groups with their changes of strength and opposition, and the note with the side effects.
//
//     struct FrmShow : CardForm {
//         explicit FrmShow(ui::Stage& stage)
//             : CardForm(stage, {.name = "frmShow", .rect = kCardSheet, .decor = kShowDecor}, kShowPlan)
//
// The two differ only in where the table and the note begin: CardRows makes the rows of either. Before each
// change stands what holds now, as far as the police tell it; below the table, what the treasury has of it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>
#include <string_view>

namespace screens {

inline constexpr ui::Rect kCardSheet{30, 58, 735, 530};
inline constexpr ui::Rect kCardLeftButton{50, 530, 200, 40};
inline constexpr ui::Rect kCardRightButton{545, 530, 200, 40};

inline constexpr int kCardGroups = 10;  // the nine groups and the Americans

inline constexpr int kCardTableWidth = 420;

struct CardPlan {
    int band = 0;    // height of the red band
    int head = 0;    // top of the headings
    int height = 0;  // of all rows of groups
    ui::Rect note{};

    constexpr int Top(int row) const { return head + 27 + height * row / kCardGroups; }
    constexpr int Height(int row) const { return Top(row + 1) - Top(row); }
    constexpr ui::Rect Name(int row) const { return {56, Top(row), 92, Height(row)}; }
    constexpr ui::Rect StrengthNow(int row) const { return {150, Top(row), 48, Height(row)}; }
    constexpr ui::Rect Strength(int row) const { return {198, Top(row), 90, Height(row)}; }
    constexpr ui::Rect OppositionNow(int row) const { return {318, Top(row), 42, Height(row)}; }
    constexpr ui::Rect Opposition(int row) const { return {360, Top(row), 90, Height(row)}; }
    constexpr ui::Rect Money() const { return {50, Top(kCardGroups) + 4, kCardTableWidth, 28}; }
    constexpr ui::Rect NoteTitle() const { return {note.left + 16, note.top + 18, note.width - 70, 28}; }
    constexpr ui::Rect NoteText() const { return {note.left + 16, note.top + 50, note.width - 30, note.height - 54}; }
};

// Elements of lblPER, by row of the table.
inline constexpr int kCardFirstStrength = 10;    // .. 18
inline constexpr int kCardFirstOpposition = 30;  // .. 38
inline constexpr int kCardAmericansStrength = 2;
inline constexpr int kCardAmericansOpposition = 1;

constexpr std::array<ui::ElementRow, 3 + 2 * kCardGroups> CardRows(const CardPlan& plan)
{
    std::array<ui::ElementRow, 3 + 2 * kCardGroups> rows{{
        { 0, { 56, plan.head,  92, 24}, "Party",      &look::kColumn,      {}},
        {28, {202, plan.head,  92, 24}, "Strength",   &look::kColumnRight, {}},
        {39, {364, plan.head,  92, 24}, "Opposition", &look::kColumnRight, {}},
    }};
    std::size_t at = 3;
    for (int row = 0; row < kCardGroups; ++row) {
        const bool americans = row == kCardGroups - 1;
        const int strength = americans ? kCardAmericansStrength : kCardFirstStrength + row;
        const int opposition = americans ? kCardAmericansOpposition : kCardFirstOpposition + row;
        rows[at++] = {strength, plan.Strength(row), "0", &look::kValue, {}};
        rows[at++] = {opposition, plan.Opposition(row), "0", &look::kValue, {}};
    }
    return rows;
}

// What stands there now, by row of the table: the Americans have no strength of their own here.
constexpr std::array<ui::ElementRow, kCardGroups - 1> StrengthNowRows(const CardPlan& plan)
{
    std::array<ui::ElementRow, kCardGroups - 1> rows{};
    for (int row = 0; row < kCardGroups - 1; ++row) {
        rows[static_cast<std::size_t>(row)] = {row, plan.StrengthNow(row), "", &look::kValueNow, {}};
    }
    return rows;
}

constexpr std::array<ui::ElementRow, kCardGroups> OppositionNowRows(const CardPlan& plan)
{
    std::array<ui::ElementRow, kCardGroups> rows{};
    for (int row = 0; row < kCardGroups; ++row) {
        rows[static_cast<std::size_t>(row)] = {row, plan.OppositionNow(row), "", &look::kValueNow, {}};
    }
    return rows;
}

// The sheet, the note, the lines of the table and a stamp at the foot.
constexpr std::array<ui::Decor, 12> CardDecor(const CardPlan& plan, std::string_view stamp)
{
    using Kind = ui::Decor::Kind;
    const auto stripe = [&plan](int row) {
        return ui::Decor{Kind::Stripe, {50, plan.Top(row), kCardTableWidth, plan.Height(row)}};
    };
    return {{
        {Kind::PaperSheet, kCardSheet},
        {Kind::Band, {30, 58, 735, plan.band}},
        {Kind::Note, plan.note},
        stripe(1), stripe(3), stripe(5), stripe(7), stripe(9),
        {Kind::Rule, {50, plan.head + 25, kCardTableWidth, 2}},
        {Kind::Rule, {50, plan.Top(9), kCardTableWidth, 2}},
        {Kind::Rule, {50, plan.Top(10), kCardTableWidth, 2}},
        {Kind::Stamp, {315, 534, 170, 30}, stamp, 6},
    }};
}

struct CardForm : ui::Form {
    CardForm(ui::Stage& stage, const ui::Form::Design& design, const CardPlan& cardPlan)
        : Form(stage, design), plan(cardPlan)
    {}

    CardPlan plan;

    ui::Label Label2{*this, "Label2", plan.Name(0), "Workers", look::kCaption};
    ui::Label Label5{*this, "Label5", plan.Name(1), "Peasants", look::kCaption};
    ui::Label Label7{*this, "Label7", plan.Name(2), "Businessmen", look::kCaption};
    ui::Label Label9{*this, "Label9", plan.Name(3), "Industrialists", look::kCaption};
    ui::Label Label11{*this, "Label11", plan.Name(4), "Landowners", look::kCaption};
    ui::Label Label1{*this, "Label1", plan.Name(5), "Army", look::kCaption};
    ui::Label Label3{*this, "Label3", plan.Name(6), "Police", look::kCaption};
    ui::Label Label4{*this, "Label4", plan.Name(7), "Guerrillas", look::kCaption};
    ui::Label Label6{*this, "Label6", plan.Name(8), "Prisoners", look::kCaption};
    ui::Label Label14{*this, "Label14", plan.Name(9), "Americans", look::kCaption};
    ui::ControlArray<ui::Label> lblPER{*this, "lblPER", CardRows(plan)};
    ui::Label lblStrengthHead{*this, "lblStrengthHead", {150, plan.head, 48, 24}, "Now", look::kColumnRight};
    ui::Label lblOppositionHead{*this, "lblOppositionHead", {318, plan.head, 42, 24}, "Now", look::kColumnRight};
    ui::ControlArray<ui::Label> lblStrengthNow{*this, "lblStrengthNow", StrengthNowRows(plan)};
    ui::ControlArray<ui::Label> lblOppositionNow{*this, "lblOppositionNow", OppositionNowRows(plan)};
    ui::Label lblMoney{*this, "lblMoney", plan.Money(), "", look::kCardMoney};

    ui::Label Label12{*this, "Label12", plan.NoteTitle(), "Sideffects:", look::kNoteTitle};
    ui::Label Label13{*this, "Label13", plan.NoteText(), "", look::kNote};
};

}  // namespace screens
