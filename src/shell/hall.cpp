#include "shell/hall.h"

#include "core/start_values.h"
#include "month/banner.h"

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
    const persist::HallReport report = hall_.Enter(persist::EntryOf(state_), state_.Dead == 1);
    ShowList(report.hall);
    ShowTrouble(report.trouble);
    if (altered && report.trouble.empty()) {
        TellAltered();
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

void HallScreen::ShowList(const persist::HallList& list)
{
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
