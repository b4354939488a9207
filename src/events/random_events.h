// Random events: the last thing that can happen in a month before a faction may ask for something. What was drawn
// (events/event_rules.h) is told by the newspaper, or put to the president as a proposal, or both.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "core/journal.h"
#include "core/numbers.h"
#include "events/event_rules.h"
#include "events/newspaper.h"
#include "media/cues.h"
#include "month/month.h"
#include "ui/screens/frm_random2.h"

#include <string_view>

namespace events {

class RandomEvents {
public:
    RandomEvents(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
                 screens::FrmRandom2& proposal, media::Sound& sound, const core::NumberFormat& format,
                 Newspaper& newspaper)
        : state_(state)
        , chance_(chance)
        , journal_(journal)
        , month_(month)
        , proposal_(proposal)
        , sound_(sound)
        , format_(format)
        , newspaper_(newspaper)
    {}

    bool Happen();  // whether anything did

private:
    void TellOfChief(std::size_t story);
    void TellOfDisaster(std::size_t disaster);
    void PutDemand(std::size_t demand);
    void TellOfRaid(std::size_t raid);
    void PutClaim(Proposal claim);
    void TellGoodNews();
    void Propose(std::string_view text);

    core::GameState& state_;
    core::Chance& chance_;
    core::Journal& journal_;
    month::Month& month_;
    screens::FrmRandom2& proposal_;
    media::Sound& sound_;
    const core::NumberFormat& format_;
    Newspaper& newspaper_;
};

}  // namespace events
