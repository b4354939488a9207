#include "office/hints.h"

#include "office/hint_table.h"

namespace office {

void Hints::Attend(const ui::Control* control, bool asked)
{
    const std::string line =
        control != nullptr && (on || asked) ? HintFor({*control, state_, format_}) : std::string();
    if (line.empty()) {
        screens_.frmHint.Hide();
        return;
    }
    Tell(line);
    if (asked && say) {
        say(line);
    }
}

void Hints::Tell(std::string_view line)
{
    screens::FrmHint& form = screens_.frmHint;
    form.lblHint.SetText(line);
    form.Show();
}

void Hints::Refresh()
{
    screens::FrmHint& form = screens_.frmHint;
    const int bottom = screens_.frmStrip.Visible() ? screens::kStripPlace.top : ui::kSpaceHeight;
    if (form.Visible() && form.Place() != screens::HintPlace(bottom)) {
        form.Hide();  // where it was
        form.SetRect(screens::HintPlace(bottom));
        form.lblHint.SetRect(screens::HintText(bottom));
        form.Show();
    }
}

}  // namespace office
