// The actions screen: what the president can do this month.
//
// What cannot be done now is dimmed and has a dash for its sign, but answers a click: with the reason.
#pragma once

#include "core/game_state.h"
#include "media/cues.h"
#include "ui/screens/frm_actions.h"
#include "ui/screens/frm_month_banner.h"

#include <functional>

namespace instruments {

class Actions {
public:
    Actions(core::GameState& state, screens::FrmActions& list, screens::FrmMonthBanner& banner,
            media::Sound& sound);

    std::function<void()> showAction;  // the card of ActionChoice

    void Open();

private:
    void Command1_Click(int index);
    bool Refused(int index);
    void MarkThoseRefused();

    core::GameState& state_;
    screens::FrmActions& list_;
    screens::FrmMonthBanner& banner_;
    media::Sound& sound_;
};

}  // namespace instruments
