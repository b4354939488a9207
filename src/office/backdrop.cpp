#include "office/backdrop.h"

#include "office/layers.h"
#include "ui/look/look.h"

#include <algorithm>

namespace office {

Backdrop::Backdrop(const core::GameState& state, ui::Desktop& desktop, const screens::FrmMain& main,
                   screens::FrmMonthBanner& banner, screens::FrmFarewell& farewell)
    : state_(state), desktop_(desktop), main_(main), banner_(banner)
{
    banner.scene = [this] { return Scene(); };
    farewell.scene = banner.scene;
    desktop.onInput = [this] { FoldMessage(); };
}

ui::Scene Backdrop::Scene()
{
    if (banner_.Back() == look::kRed) {
        return RevoltScene();
    }
    if (night_.empty() || (main_.Visible() && main_.Enabled())) {
        night_ = NightScene(state_);
    }
    return night_;
}

// While the menu is not the president's the secretary is still talking, and a click only shortens the pause. A
// message behind a dialog has not been read.
void Backdrop::FoldMessage()
{
    const auto& shown = desktop_.Shown();
    const bool seen = std::none_of(shown.begin(), shown.end(), [this](const ui::Form* form) {
        return form != &banner_ && form->Place().Overlaps(banner_.Label1.Place());
    });
    if (seen && main_.Visible() && main_.Enabled()) {
        banner_.Label1.SetFolded(true);
    }
}

}  // namespace office
