#include "office/hint_figures.h"

#include "core/actions.h"
#include "core/budget.h"
#include "core/names.h"
#include "core/officers.h"
#include "core/thresholds.h"
#include "instruments/tax_rules.h"
#include "office/margin_rules.h"
#include "office/strip_rules.h"
#include "threats/revolution_rules.h"
#include "ui/screens/card_grid.h"
#include "ui/screens/frm_police.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>

namespace office {

namespace {

using core::Digits;
using core::GameState;

constexpr std::int64_t kAmbitious = 6;  // chiefs below stay where they are put

// Of "lblPER(31)".
int IndexOf(const ui::Control& control)
{
    const std::string& name = control.Name();
    int index = -1;
    std::from_chars(name.data() + std::min(name.find('(') + 1, name.size()), name.data() + name.size(),
                    index);
    return index;
}

std::string Signed(std::int64_t points)
{
    return (points > 0 ? "+" : "") + Digits(points);
}

std::string TellChief(const core::OfficerTable& chiefs, std::int64_t corps, const char* who)
{
    const std::int64_t ambition = core::Ambition(chiefs);
    if (ambition == 0) {
        return "The post is free.";
    }
    const std::string figure = "Ability and ambition. ";
    if (ambition < kAmbitious) {
        return figure + "At ambition " + Digits(ambition) +
               " he stays where he was put; from 6 on he would rise.";
    }
    return figure + "At ambition " + Digits(ambition) + " he may rise, from month 3 on, while the " + who +
           " has strength " + Digits(corps) + ".";
}

}  // namespace

std::string TellNextMonth(const Question& of)
{
    const std::int64_t balance = StripOf(of.state).balance;
    return "Key 5: the month closes" +
           (balance == 0 ? std::string()
                         : ", the treasury " + std::string(balance < 0 ? "loses " : "gains ") +
                               of.format.Amount(std::abs(balance)) + "$") +
           ", and then it is the others' turn.";
}

std::string TellTreasury(const Question& of)
{
    const Strip facts = StripOf(of.state);
    if (facts.balance >= 0) {
        return "What the State has, for now. It grows by " + of.format.Amount(facts.balance) +
               "$ when the month closes.";
    }
    const std::int64_t months = std::max<std::int64_t>(facts.treasury, 0) / -facts.balance;
    return "At the present balance it lasts for " + Digits(months) + (months == 1 ? " month" : " months") +
           ". Then no month closes.";
}

std::string TellTaxStep(const Question& of, core::Group faction, int step)
{
    GameState tried = of.state;
    if (!(step > 0 ? instruments::RaiseTax(tried, faction) : instruments::CutTax(tried, faction))) {
        return step > 0 ? "Nine per cent is the most that can be asked without an army."
                        : "One per cent is the least. It is a matter of principle.";
    }
    const std::int64_t dollars = core::BalanceNow(tried) - core::BalanceNow(of.state);
    return (dollars < 0 ? "Costs " : "Brings ") + of.format.Amount(std::abs(dollars)) + "$ a month; " +
           std::string(core::kGroupNames[faction]) + ": opposition " +
           Signed(tried.Opposition[faction] - of.state.Opposition[faction]) + ", strength " +
           Signed(tried.Strength[faction] - of.state.Strength[faction]) + ".";
}

std::string TellPoliceChief(const Question& of)
{
    constexpr std::int64_t kPoliceThatRise = 25;
    return TellChief(of.state.PoliceChiefs, kPoliceThatRise, "police");
}

std::string TellArmyChief(const Question& of)
{
    constexpr std::int64_t kArmyThatRises = 40;
    return TellChief(of.state.ArmyChiefs, kArmyThatRises, "army");
}

std::string TellFlight(const Question& of)
{
    if (of.state.ActionDone[core::kBuyHelicopter] != 1) {
        return "On foot one president in ten arrives. The treasury stays here; Switzerland does not.";
    }
    return "The helicopter arrives in " + Digits(threats::ThrowsThatEscape(of.state)) +
           " flights of thirty. The treasury stays here; Switzerland does not.";
}

std::string TellAlly(const Question& of)
{
    const std::int64_t faction =
        of.state.ChoiceFaction.at(static_cast<std::size_t>(std::clamp(IndexOf(of.control), 0, 7)));
    if (faction == 0) {
        return {};
    }
    const std::optional<std::int64_t> strength = KnownOf(of.state, core::GroupOfFaction(faction)).strength;
    return "Asks what they want. " +
           (strength ? "Their strength of " + Digits(*strength) + " would"
                     : "Nobody knows their strength; it would") +
           " join your personal army's " + Digits(of.state.Strength[core::PersonalArmy]) + ".";
}

std::string TellReportCell(const Question& of)
{
    using screens::kReportGroups;
    const int cell = IndexOf(of.control);
    const auto is = [cell](int screens::ReportRow::*column) {
        return std::any_of(kReportGroups.begin(), kReportGroups.end(),
                           [&](const screens::ReportRow& row) { return row.*column == cell; }) ||
               screens::kReportYourArmy.*column == cell || screens::kReportCountry.*column == cell ||
               screens::kReportHeading.*column == cell;
    };
    if (cell == kReportGroups[core::Guerrillas].strength) {
        return "At 12 they raid, at 15 they attack the palace. Only an attack makes them fewer.";
    }
    if (cell == kReportGroups[core::Prisoners].strength) {
        return "At 12 they break out, and the guerrillas come to meet them.";
    }
    if (cell == screens::kReportYourArmy.strength) {
        return "What stands between you and an assassin, and beside every ally. Counts two and a half times.";
    }
    if (cell == screens::kReportCountry.opposition) {
        return "What the whole country thinks. In a revolt a fifth of it marches along.";
    }
    if (is(&screens::ReportRow::population)) {
        return "How many they are. What they earn is on the budget's screen.";
    }
    if (is(&screens::ReportRow::strength)) {
        return "From 30 on they begin revolutions; below, they send an assassin. As an ally, they count by "
               "it.";
    }
    if (is(&screens::ReportRow::share)) {
        return "Their part of the country's whole strength. What stands in the street is counted in it.";
    }
    return is(&screens::ReportRow::opposition)
               ? "How many in a hundred are against you. At 56 they join, at 65 they plot, at 66 they begin."
               : "";
}

std::string TellCardCell(const Question& of)
{
    constexpr int kColumns = 10;
    const int cell = IndexOf(of.control);
    if (cell == screens::kCardAmericansStrength) {
        return "Theirs does not change. It does not have to.";
    }
    if (cell == screens::kCardAmericansOpposition) {
        return "Points of hostility. What they lose in friendship you lose in favour.";
    }
    if (cell >= screens::kCardFirstOpposition && cell < screens::kCardFirstOpposition + kColumns) {
        return "Points of opposition that are added. A minus is good for you.";
    }
    return cell >= screens::kCardFirstStrength && cell < screens::kCardFirstStrength + kColumns
               ? "Points of strength that are added. Whether that is good depends on whose side they are."
               : "";
}

}  // namespace office
