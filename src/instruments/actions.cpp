#include "instruments/actions.h"

#include "instruments/action_refusals.h"
#include "month/banner.h"
#include "ui/look/look.h"

namespace instruments {

Actions::Actions(core::GameState& state, screens::FrmActions& list, screens::FrmMonthBanner& banner,
                 media::Sound& sound)
    : state_(state), list_(list), banner_(banner), sound_(sound)
{
    list.Command1.OnClick([this](int index) { Command1_Click(index); });
}

void Actions::Open()
{
    MarkThoseRefused();
    list_.Show();
}

void Actions::Command1_Click(int index)
{
    sound_.SoundClick();
    list_.Hide();
    if (!Refused(index)) {
        showAction();
    }
}

// An action that only was done already is the chosen one all the same.
bool Actions::Refused(int index)
{
    ActionRefusal refusal = RefusedBySituation(state_, index);
    if (!refusal) {
        state_.ActionChoice = index;
        refusal = RefusedAsDone(state_, index);
    }
    if (refusal) {
        month::Say(banner_, *refusal);
    }
    return refusal.has_value();
}

void Actions::MarkThoseRefused()
{
    for (const ui::ElementRow& row : screens::kActionRows) {
        ui::CommandButton& button = list_.Command1[row.index];
        const bool refused = RefusedBySituation(state_, row.index) || RefusedAsDone(state_, row.index);
        button.SetFore(refused ? look::kDoneText : row.style->fore);
        button.SetMark(refused ? ui::Mark::Dash : row.extras.mark);
    }
}

}  // namespace instruments
