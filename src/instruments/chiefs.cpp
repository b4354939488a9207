#include "instruments/chiefs.h"

#include "core/numbers.h"
#include "core/officers.h"
#include "instruments/chief_rules.h"
#include "month/banner.h"
#include "ui/look/look.h"

#include <utility>

namespace instruments {

namespace {

static_assert(core::kOfficers == screens::kChiefRows);

constexpr std::size_t kMostUsedRows = 9;  // with more, the candidates have run out

struct ChiefTexts {
    std::string name, ability, ambition;
};

void ShowRow(screens::ChiefTable& screen, int row, const ChiefTexts& texts, bool used)
{
    const struct {
        int element;
        const std::string& text;
    } cells[] = {
        {row, texts.name},
        {row + screens::kChiefAbility, texts.ability},
        {row + screens::kChiefAmbition, texts.ambition},
    };
    for (const auto& cell : cells) {
        screen.Label1[cell.element].SetText(cell.text);
        screen.Label1[cell.element].SetFore(used ? look::kUsedRow : look::kInk);
    }
}

}  // namespace

Chiefs::Chiefs(core::GameState& state, core::Journal& journal, month::NewGame& newGame, Screens screens,
               media::Sound& sound)
    : state_(state)
    , journal_(journal)
    , newGame_(newGame)
    , banner_(screens.frmMonthBanner)
    , sound_(sound)
    , police_{core::Police,    state.PoliceChiefs,         screens.frmPolc, "SELECT A NEW POLICE CHIEF",
              "POLICE CHIEFS", " IS THE NEW POLICE CHIEF!"}
    , army_{core::Army,    state.ArmyChiefs,         screens.frmArmyC, "SELECT A NEW ARMY CHIEF",
            "ARMY CHIEFS", " IS THE NEW ARMY CHIEF!"}
{
    screens.frmPolc.Label1.OnClick([this](int index) { Choose(police_, index); });
    screens.frmArmyC.Label1.OnClick([this](int index) { Choose(army_, index); });
    screens.frmPolice.Command3.onClick = [this, &caller = screens.frmPolice] { View(police_, caller); };
    screens.frmArmy.Command1.onClick = [this, &caller = screens.frmArmy] { View(army_, caller); };
    screens.frmArmy.Command2.onClick = [this] {
        sound_.SoundClick();
        if (armyIn) {
            armyIn();
        }
    };
}

void Chiefs::View(Force& force, ui::Form& caller)
{
    sound_.SoundClick();
    caller.Hide();
    force.screen.Show();
    force.screen.Label5.SetText(force.viewing);
    Fill(force);
    if (UsedRows(force.table) > kMostUsedRows) {
        newGame_.CreateChiefs();  // the screen keeps showing those who were
    }
}

// The police's new chief has everything to prove: he reports this month.
void Chiefs::NewPoliceChief(std::function<void()> afterwards)
{
    NewChief(police_, [this, afterwards = std::move(afterwards)] {
        state_.PoliceNoInfo = 0;
        if (afterwards) {
            afterwards();
        }
    });
}

void Chiefs::NewArmyChief(std::function<void()> afterwards)
{
    NewChief(army_, std::move(afterwards));
}

void Chiefs::NewChief(Force& force, std::function<void()> afterwards)
{
    if (!HasCandidates(force.table)) {
        newGame_.CreateChiefs();
    }
    force.screen.Label5.SetText(force.choosing);
    Fill(force);
    ShowRow(force.screen, 0, {"EMPTY", "0", "0"}, true);  // he is about to leave
    force.screen.ShowModal(std::move(afterwards));
}

bool Chiefs::IsChoosing(const Force& force)
{
    return force.screen.Label5.Text() == force.choosing;
}

void Chiefs::Fill(Force& force)
{
    for (int row = 0; row < screens::kChiefRows; ++row) {
        const auto at = static_cast<std::size_t>(row);
        const core::OfficerRow& officer = force.table[at];
        ShowRow(force.screen, row,
                {core::DisplayName(officer), core::TextOf(officer[core::kAbility]),
                 core::TextOf(officer[core::kAmbition])},
                IsUsed(officer));
        force.screen.Label1[row].SetTabStop(IsChoosing(force) && IsCandidate(force.table, at));
    }
}

// Only a candidate's name chooses; a click beside it is heard and does nothing.
void Chiefs::Choose(Force& force, int index)
{
    if (!IsChoosing(force)) {
        return;
    }
    sound_.SoundClick();
    const auto row = static_cast<std::size_t>(index);
    if (!IsCandidate(force.table, row)) {
        return;
    }
    Appoint(force.table, row);
    journal_.Add(core::Kind::NewChief, core::WhoIs(force.group), core::Ability(force.table));
    force.screen.Hide();
    month::Say(banner_, core::DisplayName(force.table[0]) + std::string(force.appointed));
}

}  // namespace instruments
