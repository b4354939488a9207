#include "office/slip.h"

#include "core/names.h"
#include "instruments/report_rules.h"
#include "ui/look/look.h"

#include <algorithm>
#include <string>

namespace office {

namespace {

// A message of at most so many letters ends above the slip.
constexpr std::size_t kShortMessage = 60;

std::string Signed(std::int64_t change, const std::string& digits)
{
    return change > 0 ? "+" + digits : digits;
}

// Shape and colour say what a change means for the president: opposition is worse when it rises, money when it falls.
void ShowChange(ui::Label& label, std::int64_t change, bool risingIsGood, const std::string& digits)
{
    const bool better = (change > 0) == risingIsGood;
    label.SetText(change == 0 ? "" : Signed(change, digits));
    label.SetMark(change > 0 ? ui::Mark::Up : change < 0 ? ui::Mark::Down : ui::Mark::Dash);
    label.SetFore(change == 0 ? look::kUsedRow : better ? look::kBetter : look::kNegative);
}

ui::Mark MarkOf(std::size_t row, std::int64_t figure)
{
    using instruments::Danger;
    const Danger danger =
        row == kGuerrillaRow ? instruments::OutsiderDanger(figure) : instruments::OppositionDanger(figure);
    switch (danger) {
    case Danger::MayStart:
        return ui::Mark::Triangle;
    case Danger::MayJoin:
        return ui::Mark::Disc;
    case Danger::Strong:
        return ui::Mark::Diamond;
    case Danger::None:
        break;
    }
    return ui::Mark::Blank;
}

}  // namespace

Slip::Slip(const core::GameState& state, core::Journal& journal, screens::Screens& screens,
           const ui::Desktop& desktop, const core::NumberFormat& format)
    : state_(state), screens_(screens), desktop_(desktop), format_(format)
{
    journal.Listen([this](const core::Note& note) { Note(note); });
}

// The month's own note comes when the accounts are settled and nothing else has happened yet.
void Slip::Note(const core::Note& note)
{
    if (note.kind == core::Kind::Month) {
        before_ = StandingOf(state_);
        before_.treasury -= note.amount;
        notes_.clear();
        waits_ = true;
    }
    notes_.push_back(note);
}

bool Slip::DeskIsFree() const
{
    const auto& shown = desktop_.Shown();
    const ui::Label& message = screens_.frmMonthBanner.Label1;
    return screens_.frmMain.Visible() && screens_.frmMain.Enabled() && state_.Dead == 0 &&
           screens_.frmMonthBanner.Back() != look::kRed && !screens_.frmMonthBanner.Image1.Now().visible &&
           (message.Text().size() <= kShortMessage || message.Now().folded) &&
           std::all_of(shown.begin(), shown.end(), [this](const ui::Form* form) {
               const ui::Form::Design& design = form->GetDesign();
               return design.backdrop || design.fixture || form == &screens_.frmMain;
           });
}

void Slip::Refresh()
{
    if (waits_ && DeskIsFree()) {
        waits_ = false;
        after_ = StandingOf(state_);
        Write();
        screens_.frmSlip.Show();
    }
}

void Slip::Write()
{
    screens::FrmSlip& slip = screens_.frmSlip;
    slip.lblTitle.SetText("MONTH " + core::Digits(after_.month));
    for (int row = 0; row < screens::kSlipRows; ++row) {
        WriteRow(row);
    }
    WriteMoney(0, before_.treasury, after_.treasury);
    WriteMoney(1, before_.balance, after_.balance);
    const std::vector<std::string> lines = Happenings(notes_, before_, after_, format_);
    for (int i = 0; i < screens::kSlipLines; ++i) {
        const auto at = static_cast<std::size_t>(i);
        slip.lblLine[i].SetVisible(at < lines.size());
        slip.lblLine[i].SetText(at < lines.size() ? lines[at] : "");
        slip.lblLine[i].SetMark(ui::Mark::Star);
    }
}

void Slip::WriteRow(int row)
{
    screens::FrmSlip& slip = screens_.frmSlip;
    const auto at = static_cast<std::size_t>(row);
    const std::optional<std::int64_t> figure = Figure(after_, at);
    slip.lblValue[row].SetText(figure ? core::Digits(*figure) : "?");
    slip.Label2[row].SetMark(figure ? MarkOf(at, *figure) : ui::Mark::Blank);
    const std::optional<std::int64_t> change = Change(before_, after_, at);
    slip.lblChange[row].SetVisible(change.has_value());
    if (change) {
        ShowChange(slip.lblChange[row], *change, false, core::Digits(*change));
    }
}

void Slip::WriteMoney(int row, std::int64_t before, std::int64_t after)
{
    screens::FrmSlip& slip = screens_.frmSlip;
    slip.lblMoney[row].SetText(format_.Amount(after));
    slip.lblMoney[row].SetFore(after < 0 ? look::kNegative : look::kInk);
    ShowChange(slip.lblMoneyChange[row], after - before, true, format_.Amount(after - before));
    slip.lblMoneyChange[row].SetMark(ui::Mark::None);
}

}  // namespace office
