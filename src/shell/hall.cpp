#include "shell/hall.h"

#include "core/start_values.h"
#include "month/banner.h"

#include <span>

namespace shell {

HallScreen::HallScreen(core::GameState& state, month::Month& month, ui::Desktop& desktop, Screens screens,
                       const files::WrittenFiles& files, const core::NumberFormat& format)
    : state_(state), month_(month), desktop_(desktop), screens_(screens), hall_(files), format_(format)
{
    screens.frmTop102.onClick = [this] {
        GRestart();
        screens_.frmTop102.Hide();  // who only looked at the list goes back to his game
    };
}

void HallScreen::TopTen()
{
    state_.HallShown = 1;
    screens_.frmTop102.Show();
    const bool altered = hall_.Altered();
    const persist::HallEntry entry = persist::EntryOf(state_);
    const persist::HallReport report = hall_.Enter(entry, state_.Dead == 1);
    const std::string points = persist::ShownScore(static_cast<double>(persist::Score(entry)), format_);
    ShowList(report.hall);
    ShowOwnRow(report, points, stampOf ? stampOf() : std::string());
    ShowTrouble(report.trouble);
    if (altered && report.trouble.empty()) {
        TellAltered();
    }
    if (onEntered) {
        onEntered(report.place ? static_cast<int>(*report.place) : -1, points);
    }
}

void HallScreen::See()
{
    const files::Result<persist::HallList> list = hall_.Read();
    if (!list) {
        month::Say(screens_.frmMonthBanner, "Mr.President, the list of the great cannot be read. " +
                                                list.Error().Message() + ". They are still great.");
        return;
    }
    screens_.frmTop102.Show();
    ShowList(*list);
    ShowTrouble({});
    if (hall_.Altered()) {
        TellAltered();
    }
}

void HallScreen::LayOut(int height)
{
    screens::FrmTop102& hall = screens_.frmTop102;
    hall.SetDecor(height == screens::kHallRowsHeight ? std::span<const ui::Decor>(screens::kHallDecor)
                                                     : screens::kHallFootDecor);
    for (int i = 0; i < screens::kHallRows; ++i) {
        hall.Label2[i].SetRect(screens::HallRank(i, height));
        hall.Label1[i].SetRect(screens::HallSentence(i, height));
    }
}

// His row is lit; a president whom the list passes over reads what it would have taken. The dead are placed as if they
// had scored nothing, and that is told.
void HallScreen::ShowOwnRow(const persist::HallReport& report, const std::string& points,
                            const std::string& stamp)
{
    screens::FrmTop102& hall = screens_.frmTop102;
    const bool foot = !report.place || !stamp.empty();
    const int height = foot ? screens::kHallShortHeight : screens::kHallRowsHeight;
    LayOut(height);
    if (report.place) {
        const int place = static_cast<int>(*report.place);
        hall.Shape1.SetRect(screens::HallRow(place, height));
        for (ui::Control* tab :
             {static_cast<ui::Control*>(&hall.Shape2), static_cast<ui::Control*>(&hall.Label4)}) {
            tab->SetRect(screens::HallTab(place, height));
        }
    } else {
        const std::string tenth =
            persist::ShownScore(static_cast<double>(persist::Score(report.hall.back())), format_);
        hall.Label5.SetText("You: " + points + " points" +
                            (state_.Dead == 1 ? ", of which the dead are paid none" : "") +
                            ". Tenth place begins at " + tenth + ".");
    }
    ShowOwn(report.place.has_value(), !report.place);
    hall.lblStamp.SetText(stamp);
    hall.lblStamp.SetVisible(!stamp.empty());
}

void HallScreen::ShowOwn(bool row, bool foot)
{
    screens::FrmTop102& hall = screens_.frmTop102;
    hall.Shape1.SetVisible(row);
    hall.Shape2.SetVisible(row);
    hall.Label4.SetVisible(row);
    hall.Label5.SetVisible(foot);
    hall.lblStamp.SetVisible(false);
}

void HallScreen::ShowList(const persist::HallList& list)
{
    LayOut(screens::kHallRowsHeight);
    ShowOwn(false, false);
    for (int i = 0; i < screens::kHallRows; ++i) {
        screens_.frmTop102.Label1[i].SetText(persist::Sentence(list[static_cast<std::size_t>(i)], format_));
    }
}

// Only a remark: the list counts as it stands.
void HallScreen::TellAltered()
{
    screens_.frmTop102.Label3.SetText(
        "Somebody else has written in this list. We thank him for the interest.");
    screens_.frmTop102.Label3.SetVisible(true);
    screens_.frmTop102.Label6.SetVisible(false);
}

void HallScreen::ShowTrouble(const std::string& trouble)
{
    screens_.frmTop102.Label3.SetText(trouble);
    screens_.frmTop102.Label3.SetVisible(!trouble.empty());
    screens_.frmTop102.Label6.SetVisible(trouble.empty());
    if (!trouble.empty()) {
        month::Say(screens_.frmMonthBanner, trouble);
    }
}

// Every screen but three belongs to a game. They are unloaded, not hidden: what a dialog would have continued
// with when it is closed must not run in a game that is over.
void HallScreen::GRestart()
{
    state_.DisplayModeSet = 1;
    if (state_.HallShown == 0) {
        return;
    }
    for (ui::Form* form : desktop_.Forms()) {
        const bool stays =
            form == &screens_.frmMonthBanner || form == &screens_.frmlogo || form == &screens_.frmStart;
        if (!stays) {
            form->Unload();
        }
    }
    screens_.frmStart.Hide();
    month::ClearBanner(screens_.frmMonthBanner);
    screens_.frmlogo.Show();
    core::ClearGame(state_);
    month_.Forget();
}

}  // namespace shell
