#include "office/margin.h"

#include "core/names.h"
#include "core/officers.h"
#include "office/margin_rules.h"
#include "threats/intelligence_rules.h"
#include "ui/look/look.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace office {

namespace {

std::string Text(const std::optional<std::int64_t>& figure, std::string_view unit = "")
{
    return figure ? core::Digits(*figure).append(unit) : "?";
}

// Captions of buttons are set with wide gaps.
std::string WithoutGaps(std::string text)
{
    text.erase(std::unique(text.begin(), text.end(), [](char a, char b) { return a == ' ' && b == ' '; }),
               text.end());
    return text;
}

std::string SkillsOf(const core::OfficerTable& chiefs)
{
    return "ability " + core::Digits(core::Ability(chiefs)) + ", ambition " +
           core::Digits(core::Ambition(chiefs));
}

bool Any(const core::PerFactionNumber<bool>& marked)
{
    return std::find(marked.begin(), marked.end(), true) != marked.end();
}

}  // namespace

void Margin::Refresh()
{
    if (screens_.frmShow.Visible()) {
        OnCard(screens_.frmShow, true);
    }
    if (screens_.frmShow2.Visible()) {
        OnCard(screens_.frmShow2, false);
    }
    if (screens_.frmMes2.Visible()) {
        screens_.frmMes2.lblSpeaker.SetText("The " + std::string(core::FactionName(state_.AllyFaction)) +
                                            " make an offer");
    }
    if (screens_.frmAIN.Visible()) {
        const threats::Forecast forecast = threats::Foresee(state_);
        screens_.frmAIN.lblJoin.SetVisible(Any(forecast.starters) && Any(forecast.supporters));
    }
    OnChiefs();
    OnMenu();
}

void Margin::OnCard(screens::CardForm& card, bool action)
{
    for (int row = 0; row < screens::kCardGroups - 1; ++row) {
        const Known known = KnownOf(state_, static_cast<core::Group>(row));
        card.lblStrengthNow[row].SetText(Text(known.strength));
        card.lblOppositionNow[row].SetText(Text(known.opposition, "%"));
    }
    card.lblOppositionNow[screens::kCardGroups - 1].SetText(Text(HostilityOf(state_), "%"));

    const Money money =
        action ? MoneyOfAction(state_, state_.ActionChoice) : MoneyOfRequest(state_, state_.RequestDraw);
    const std::int64_t sum = money.monthly + money.atOnce + money.hoped;
    card.lblMoney.SetText(Told(money, format_));
    card.lblMoney.SetMark(sum > 0 ? ui::Mark::Up : sum < 0 ? ui::Mark::Down : ui::Mark::Dash);
    card.lblMoney.SetFore(sum > 0 ? look::kBetter : sum < 0 ? look::kNegative : look::kInk);

    const auto button = static_cast<int>(std::int64_t{state_.ActionChoice});
    if (action && screens_.frmActions.Command1.Has(button)) {
        screens_.frmShow.lblAction.SetText(WithoutGaps(screens_.frmActions.Command1[button].Text()));
    }
}

void Margin::OnChiefs()
{
    if (screens_.frmPolice.Visible()) {
        screens_.frmPolice.lblChief.SetText(SkillsOf(state_.PoliceChiefs));
    }
    if (screens_.frmArmy.Visible()) {
        screens_.frmArmy.lblChief.SetText(SkillsOf(state_.ArmyChiefs));
    }
}

// The front screen that a key led to, at first or in the end.
void Margin::OnMenu()
{
    using screens::MenuItem;
    const struct {
        const ui::Form& form;
        MenuItem item;
    } rows[] = {
        {screens_.frmActions, screens::kMenuActions},  {screens_.frmShow, screens::kMenuActions},
        {screens_.frmTaxes, screens::kMenuTaxes},      {screens_.frmBank, screens::kMenuTaxes},
        {screens_.frmPolice, screens::kMenuPolice},    {screens_.frmPolc, screens::kMenuPolice},
        {screens_.frmArmy, screens::kMenuArmy},        {screens_.frmArmyC, screens::kMenuArmy},
        {screens_.frmAIN, screens::kMenuArmy},         {screens_.frmOptions, screens::kMenuOptions},
        {screens_.frmSave, screens::kMenuOptions},     {screens_.frmLoad, screens::kMenuOptions},
        {screens_.frmHistory, screens::kMenuOptions},  {screens_.frmTop102, screens::kMenuOptions},
        {screens_.frmSettings, screens::kMenuOptions}, {screens_.frmChronicle, screens::kMenuOptions},
    };
    const MenuItem* open = nullptr;
    for (const ui::Form* shown : desktop_.Shown()) {
        for (const auto& row : rows) {
            open = &row.form == shown ? &row.item : open;
        }
    }
    screens::FrmMain& menu = screens_.frmMain;
    menu.shpOpenBar.SetVisible(open != nullptr);
    menu.shpOpenPoint.SetVisible(open != nullptr);
    if (open == nullptr) {
        return;
    }
    const bool lit = menu.Label5[*open].Now().picture.ends_with("a.bmp");
    const ui::Color ink = lit ? look::kInk : look::kBandText;
    menu.shpOpenBar.SetRect(screens::OpenBar(*open));
    menu.shpOpenBar.SetBack(ink);
    menu.shpOpenPoint.SetRect(screens::OpenPoint(*open));
    menu.shpOpenPoint.SetFore(ink);
}

}  // namespace office
