#include "office/hints.h"

#include "office/hint_table.h"

namespace office {

void Hints::Attend(const ui::Control* control, bool asked)
{
    const std::string line =
        control != nullptr && (on || asked) ? HintFor({*control, state_, format_}) : std::string();
    screens::FrmHint& form = screens_.frmHint;
    if (line.empty()) {
        form.Hide();
        return;
    }
    const int bottom = screens_.frmStrip.Visible() ? screens::kStripPlace.top : ui::kSpaceHeight;
    form.Hide();  // where it was
    form.SetRect(screens::HintPlace(bottom));
    form.lblHint.SetRect(screens::HintText(bottom));
    form.lblHint.SetText(line);
    form.Show();
    if (asked && say) {
        say(line);
    }
}

}  // namespace office
