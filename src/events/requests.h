// The requests: in a quiet month a faction may ask the president for something.
#pragma once

#include "core/cards.h"
#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "core/variants.h"
#include "files/program_folder.h"
#include "media/cues.h"
#include "month/month.h"
#include "ui/screens/frm_month_banner.h"
#include "ui/screens/frm_show2.h"

namespace events {

class Requests {
public:
    Requests(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
             const files::ProgramFolder& folder, const core::Variants& variants,
             screens::FrmMonthBanner& banner, screens::FrmShow2& dialog, media::Sound& sound);

    // The month's last event. The month is closed in any case: at once where nobody asks, else by the answer.
    void Request();
    void ShowAction2();
    void MakeRequest();
    void DontMakeRequest();

private:
    files::Result<core::Card> ReadThisCard() const;

    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    month::Month& month_;
    const files::ProgramFolder& folder_;
    const core::Variants& variants_;
    screens::FrmMonthBanner& banner_;
    screens::FrmShow2& dialog_;
    media::Sound& sound_;
};

}  // namespace events
