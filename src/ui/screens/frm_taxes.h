// frmTaxes: the rates of the five taxed factions, what they bring, what the state costs, what is left.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kTaxesSheet{12, 58, 771, 529};

// Rows of the three tables, counted from 0.
constexpr ui::Rect RatePlace(int i, int left, int width)    { return {left, 132 + 34 * i, width, 34}; }
constexpr ui::Rect RateKeyPlace(int i, int left)            { return {left, 135 + 34 * i, 26, 26}; }
constexpr ui::Rect RateBoxPlace(int i)                      { return {173, 135 + 34 * i, 44, 27}; }
constexpr ui::Rect IncomePlace(int i, int left, int width)  { return {left, 379 + 23 * i, width, 23}; }
constexpr ui::Rect ExpensePlace(int i, int left, int width) { return {left, 131 + (304 * i + 5) / 10, width, 30}; }

inline constexpr std::array kTaxesDecor{
    ui::Decor{ui::Decor::Kind::PaperSheet, kTaxesSheet, "Taxes and budget"},
    // Rates and what they bring.
    ui::Decor{ui::Decor::Kind::Rule, {28, 128, 352, 2}},
    ui::Decor{ui::Decor::Kind::Stripe, {28, 165, 352, 34}},
    ui::Decor{ui::Decor::Kind::Stripe, {28, 233, 352, 34}},
    ui::Decor{ui::Decor::Kind::Hairline, {28, 165, 352, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {28, 199, 352, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {28, 233, 352, 1}},
    ui::Decor{ui::Decor::Kind::Hairline, {28, 267, 352, 1}},
    ui::Decor{ui::Decor::Kind::Rule, {28, 302, 352, 2}},
    ui::Decor{ui::Decor::Kind::DoubleRule, {28, 337, 352, 4}},
    // What a person earns.
    ui::Decor{ui::Decor::Kind::Rule, {28, 376, 352, 2}},
    ui::Decor{ui::Decor::Kind::Stripe, IncomePlace(1, 28, 352)},
    ui::Decor{ui::Decor::Kind::Stripe, IncomePlace(3, 28, 352)},
    // Expenses.
    ui::Decor{ui::Decor::Kind::Hairline, {394, 108, 1, 400}},
    ui::Decor{ui::Decor::Kind::Rule, {410, 128, 357, 2}},
    ui::Decor{ui::Decor::Kind::Stripe, ExpensePlace(1, 410, 357)},
    ui::Decor{ui::Decor::Kind::Stripe, ExpensePlace(3, 410, 357)},
    ui::Decor{ui::Decor::Kind::Stripe, ExpensePlace(5, 410, 357)},
    ui::Decor{ui::Decor::Kind::Stripe, ExpensePlace(7, 410, 357)},
    ui::Decor{ui::Decor::Kind::Stripe, ExpensePlace(9, 410, 357)},
    ui::Decor{ui::Decor::Kind::Rule, {410, 435, 357, 2}},
    ui::Decor{ui::Decor::Kind::DoubleRule, {410, 470, 357, 4}},
    // What is left.
    ui::Decor{ui::Decor::Kind::FootStrip, {13, 517, 769, 69}},
};

// Row i of the expenses: the caption lblOutTree of the first table, the value OutNum(i) of the second.
inline constexpr ui::Rect kTotalExpenses{581, 440, 180, 28};
inline constexpr std::array<ui::ElementRow, 11> kExpenseCaptions{{
    {11, ExpensePlace(0, 416, 190), "State expenses:",        &look::kCaption},
    {0,  ExpensePlace(1, 416, 190), "Education:",             &look::kCaption},
    {1,  ExpensePlace(2, 416, 190), "Health care:",           &look::kCaption},
    {2,  ExpensePlace(3, 416, 190), "Allowances:",            &look::kCaption},
    {3,  ExpensePlace(4, 416, 190), "Army:",                  &look::kCaption},
    {4,  ExpensePlace(5, 416, 190), "Police:",                &look::kCaption},
    {5,  ExpensePlace(6, 416, 190), "Prisons:",               &look::kCaption},
    {6,  ExpensePlace(7, 416, 190), "Unemployment benefits:", &look::kCaption},
    {9,  ExpensePlace(8, 416, 190), "War expenses:",          &look::kCaption},
    {10, ExpensePlace(9, 416, 190), "Personal army:",         &look::kCaption},
    {12, {416, 440, 165, 28},      "Total expenses:",        &look::kTotalCaption},
}};
inline constexpr std::array<ui::ElementRow, 11> kExpenseValues{{
    {0,  ExpensePlace(0, 611, 150), "0", &look::kValue},
    {1,  ExpensePlace(1, 611, 150), "0", &look::kValue},
    {2,  ExpensePlace(2, 611, 150), "0", &look::kValue},
    {3,  ExpensePlace(3, 611, 150), "0", &look::kValue},
    {4,  ExpensePlace(4, 611, 150), "0", &look::kValue},
    {5,  ExpensePlace(5, 611, 150), "0", &look::kValue},
    {6,  ExpensePlace(6, 611, 150), "0", &look::kValue},
    {7,  ExpensePlace(7, 611, 150), "0", &look::kValue},
    {8,  ExpensePlace(8, 611, 150), "0", &look::kValue},
    {9,  ExpensePlace(9, 611, 150), "0", &look::kValue},
    {10, kTotalExpenses,           "0", &look::kTotal},
}};

struct FrmTaxes : ui::Form {
    explicit FrmTaxes(ui::Stage& stage)
        : Form(stage, {.name = "frmTaxes", .rect = kTaxesSheet, .decor = kTaxesDecor})
    {}

    ui::Label Label3{*this, "Label3", {135, 104, 120, 23}, "Tax Rate", look::kColumnCenter};
    ui::Label Label4{*this, "Label4", {260, 104, 120, 23}, "Tax Income", look::kColumnRight};

    ui::Label Label2{*this, "Label2", RatePlace(0, 34, 106), "Workers", look::kCaption};
    ui::CommandButton Command2{*this, "Command2", RateKeyPlace(0, 141), "-", look::kRateButton};
    ui::Label TaxRateC{*this, "TaxRateC", RateBoxPlace(0), "0", look::kRate};
    ui::CommandButton Command1{*this, "Command1", RateKeyPlace(0, 223), "+", look::kRateButton};
    ui::Label TaxIncomeC{*this, "TaxIncomeC", RatePlace(0, 254, 120), "0", look::kValue};

    ui::Label Label5{*this, "Label5", RatePlace(1, 34, 106), "Peasants", look::kCaption};
    ui::CommandButton Command3{*this, "Command3", RateKeyPlace(1, 141), "-", look::kRateButton};
    ui::Label TaxRateP{*this, "TaxRateP", RateBoxPlace(1), "0", look::kRate};
    ui::CommandButton Command4{*this, "Command4", RateKeyPlace(1, 223), "+", look::kRateButton};
    ui::Label TaxIncomeP{*this, "TaxIncomeP", RatePlace(1, 254, 120), "0", look::kValue};

    ui::Label Label7{*this, "Label7", RatePlace(2, 34, 106), "Businessmen", look::kCaption};
    ui::CommandButton Command5{*this, "Command5", RateKeyPlace(2, 141), "-", look::kRateButton};
    ui::Label TaxRateS{*this, "TaxRateS", RateBoxPlace(2), "0", look::kRate};
    ui::CommandButton Command6{*this, "Command6", RateKeyPlace(2, 223), "+", look::kRateButton};
    ui::Label TaxIncomeS{*this, "TaxIncomeS", RatePlace(2, 254, 120), "0", look::kValue};

    ui::Label Label9{*this, "Label9", RatePlace(3, 34, 106), "Industrialists", look::kCaption};
    ui::CommandButton Command7{*this, "Command7", RateKeyPlace(3, 141), "-", look::kRateButton};
    ui::Label TaxRateK{*this, "TaxRateK", RateBoxPlace(3), "0", look::kRate};
    ui::CommandButton Command8{*this, "Command8", RateKeyPlace(3, 223), "+", look::kRateButton};
    ui::Label TaxIncomeK{*this, "TaxIncomeK", RatePlace(3, 254, 120), "0", look::kValue};

    ui::Label Label11{*this, "Label11", RatePlace(4, 34, 106), "Landowners", look::kCaption};
    ui::CommandButton Command9{*this, "Command9", RateKeyPlace(4, 141), "-", look::kRateButton};
    ui::Label TaxRateL{*this, "TaxRateL", RateBoxPlace(4), "0", look::kRate};
    ui::CommandButton Command10{*this, "Command10", RateKeyPlace(4, 223), "+", look::kRateButton};
    ui::Label TaxIncomeL{*this, "TaxIncomeL", RatePlace(4, 254, 120), "0", look::kValue};

    ui::Label Label6{*this, "Label6", {34, 307, 140, 28}, "Income:", look::kTotalCaption};
    ui::Label lblIncome{*this, "lblIncome", {180, 307, 194, 28}, "0", look::kTotal};

    ui::Label Label24{*this, "Label24", {28, 352, 352, 23}, "Monthly income per person", look::kColumn};
    ui::Label Label15{*this, "Label15", IncomePlace(0, 34, 150), "Workers:", look::kSmallCaption};
    ui::Label Label21{*this, "Label21", IncomePlace(0, 194, 180), "0$", look::kSmallValue};
    ui::Label Label14{*this, "Label14", IncomePlace(1, 34, 150), "Peasants:", look::kSmallCaption};
    ui::Label Label20{*this, "Label20", IncomePlace(1, 194, 180), "0$", look::kSmallValue};
    ui::Label Label13{*this, "Label13", IncomePlace(2, 34, 150), "Businessmen:", look::kSmallCaption};
    ui::Label Label19{*this, "Label19", IncomePlace(2, 194, 180), "0$", look::kSmallValue};
    ui::Label Label12{*this, "Label12", IncomePlace(3, 34, 150), "Industrialists:", look::kSmallCaption};
    ui::Label Label18{*this, "Label18", IncomePlace(3, 194, 180), "0$", look::kSmallValue};
    ui::Label Label10{*this, "Label10", IncomePlace(4, 34, 150), "Landowners:", look::kSmallCaption};
    ui::Label Label17{*this, "Label17", IncomePlace(4, 194, 180), "0$", look::kSmallValue};

    ui::Label Label16{*this, "Label16", {410, 104, 357, 23}, "Expenses", look::kColumn};
    ui::ControlArray<ui::Label> lblOutTree{*this, "lblOutTree", kExpenseCaptions};
    ui::ControlArray<ui::Label> OutNum{*this, "OutNum", kExpenseValues};

    ui::Label Label1{*this, "Label1", {34, 523, 120, 28}, "Balance:", look::kTotalCaption};
    ui::Label lblbalance{*this, "lblbalance", {160, 523, 214, 28}, "0", look::kTotal};
    ui::Label Label23{*this, "Label23", {34, 551, 120, 28}, "Money:", look::kTotalCaption};
    ui::Label Label22{*this, "Label22", {160, 551, 214, 28}, "0", look::kTotal};
    ui::CommandButton Command11{*this, "Command11", {424, 531, 329, 40}, "Transfer money to your Swiss bank account",
        look::kButton};
};

}  // namespace screens
