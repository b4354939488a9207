#include "instruments/taxes.h"

#include "core/budget.h"
#include "core/society.h"
#include "instruments/tax_rules.h"
#include "ui/look/look.h"

namespace instruments {

namespace {

using core::GameState;
using screens::FrmTaxes;

// What belongs to one taxed faction on the screen.
struct RateRow {
    core::Group faction;
    ui::CommandButton FrmTaxes::*cut;
    ui::CommandButton FrmTaxes::*raise;
    ui::Label FrmTaxes::*rate;
    ui::Label FrmTaxes::*income;     // dollars a month
    ui::Label FrmTaxes::*perPerson;  // dollars a month
};
// clang-format off
constexpr RateRow kRateRows[] = {
    {core::Workers,        &FrmTaxes::Command2, &FrmTaxes::Command1,  &FrmTaxes::TaxRateC, &FrmTaxes::TaxIncomeC, &FrmTaxes::Label21},
    {core::Peasants,       &FrmTaxes::Command3, &FrmTaxes::Command4,  &FrmTaxes::TaxRateP, &FrmTaxes::TaxIncomeP, &FrmTaxes::Label20},
    {core::Businessmen,    &FrmTaxes::Command5, &FrmTaxes::Command6,  &FrmTaxes::TaxRateS, &FrmTaxes::TaxIncomeS, &FrmTaxes::Label19},
    {core::Industrialists, &FrmTaxes::Command7, &FrmTaxes::Command8,  &FrmTaxes::TaxRateK, &FrmTaxes::TaxIncomeK, &FrmTaxes::Label18},
    {core::Landowners,     &FrmTaxes::Command9, &FrmTaxes::Command10, &FrmTaxes::TaxRateL, &FrmTaxes::TaxIncomeL, &FrmTaxes::Label17},
};
// clang-format on
static_assert(std::size(kRateRows) == core::kTaxed);

// By the index of OutNum.
constexpr core::i32 GameState::*kExpenses[] = {
    &GameState::ExpState, &GameState::ExpEducation,    &GameState::ExpHealth,  &GameState::ExpAllowances,
    &GameState::ExpArmy,  &GameState::ExpPolice,       &GameState::ExpPrisons, &GameState::ExpUnemployment,
    &GameState::ExpWar,   &GameState::ExpPersonalArmy, &GameState::ExpTotal,
};

// A debt is red besides its sign.
void ShowAmount(ui::Label& label, std::int64_t amount, const core::NumberFormat& format)
{
    label.SetText(format.Amount(amount));
    label.SetFore(amount < 0 ? look::kNegative : label.Style().fore);
}

}  // namespace

Taxes::Taxes(GameState& state, FrmTaxes& taxes, Bank& bank, media::Sound& sound,
             const core::NumberFormat& format)
    : state_(state), taxes_(taxes), bank_(bank), sound_(sound), format_(format)
{
    for (const RateRow& row : kRateRows) {
        (taxes.*row.raise).onClick = [this, faction = row.faction] { Step(RaiseTax, faction); };
        (taxes.*row.cut).onClick = [this, faction = row.faction] { Step(CutTax, faction); };
    }
    taxes.Command11.onClick = [this] { GoToTheBank(); };
}

void Taxes::Open()
{
    taxes_.Show();
    Ref();
    Ref2();
}

void Taxes::Ref()
{
    KeepTaxesInRange(state_);
    core::UpdateTaxIncome(state_);
    for (const RateRow& row : kRateRows) {
        (taxes_.*row.perPerson).SetText(format_.Amount(state_.IncomePerPerson[row.faction]) + "$");
        (taxes_.*row.rate).SetText(core::Digits(state_.TaxRate[row.faction]));
        (taxes_.*row.income).SetText(format_.Amount(state_.TaxIncome[row.faction]));
    }
    taxes_.lblIncome.SetText(format_.Amount(state_.TaxIncomeTotal));
    ShowBalance();
    ShowAmount(taxes_.Label22, state_.Money, format_);
    core::UpdatePopularity(state_);
}

void Taxes::Ref2()
{
    core::UpdateExpTotal(state_);
    for (std::size_t i = 0; i < std::size(kExpenses); ++i) {
        taxes_.OutNum[static_cast<int>(i)].SetText(format_.Amount(state_.*kExpenses[i]));
    }
    ShowBalance();
}

void Taxes::ShowBalance()
{
    ShowAmount(taxes_.lblbalance, core::Balance(state_), format_);
}

// A button at its limit only clicks.
void Taxes::Step(bool (*step)(GameState&, core::Group), core::Group faction)
{
    sound_.SoundClick();
    if (step(state_, faction)) {
        Ref();
    }
}

void Taxes::GoToTheBank()
{
    sound_.SoundClick();
    taxes_.Hide();
    bank_.Open();
}

}  // namespace instruments
