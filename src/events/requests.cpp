#include "events/requests.h"

#include "core/banner.h"
#include "core/cards.h"
#include "core/names.h"
#include "core/numbers.h"
#include "events/card_effects.h"
#include "events/card_view.h"
#include "events/request_draw.h"

#include <string>

namespace events {

namespace {

constexpr std::string_view kCard = "this month's request";
constexpr std::int64_t kOffence = 10;  // percent of the faction that take a refusal ill

std::string CardOf(const core::GameState& state)
{
    return "Actions/M" + core::Digits(state.RequestDraw);
}

}  // namespace

Requests::Requests(core::GameState& state, core::Chance& chance, const files::ProgramFolder& folder,
                   screens::Screens& screens, media::Sound& sound)
    : state_(state), chance_(chance), folder_(folder), screens_(screens), sound_(sound)
{
    screens.frmShow2.Command1.onClick = [this] {
        sound_.SoundClick();
        screens_.frmShow2.Hide();
        MakeRequest();
    };
    screens.frmShow2.Command3.onClick = [this] {
        sound_.SoundClick();
        screens_.frmShow2.Hide();
        DontMakeRequest();
    };
}

void Requests::Request()
{
    screens_.frmMain.SetEnabled(false);
    if (!DrawRequest(state_, chance_)) {
        core::GiveBack(screens_.frmMain);
        return;
    }
    screens_.frmShow2.Label8.SetText(
        "A request from the " + std::string(core::kGroupNames[core::GroupOfFaction(state_.RequestFaction)]));
    ShowAction2();
}

void Requests::ShowAction2()
{
    if (NobodyToRelease(state_)) {
        core::GiveBack(screens_.frmMain);
        return;
    }
    screens_.frmMain.SetEnabled(false);
    const files::Result<core::Card> card = core::ReadCard(folder_, CardOf(state_));
    if (!card) {
        TellBadCard(screens_.frmMonthBanner, kCard, card.Error());
        core::GiveBack(screens_.frmMain);
        return;
    }
    screens_.frmShow2.Label10.SetText(card->title);
    FillCard(screens_.frmShow2, *card);
    screens_.frmShow2.ShowModal();
}

void Requests::MakeRequest()
{
    const files::Result<core::Card> card = core::ReadCard(folder_, CardOf(state_));
    if (card) {
        core::Apply(card->effects, state_);
        core::Say(screens_.frmMonthBanner, card->result);
        ApplyRequestEffect(state_.RequestDraw, state_);
    } else {
        TellBadCard(screens_.frmMonthBanner, kCard, card.Error());
    }
    core::GiveBack(screens_.frmMain);
}

void Requests::DontMakeRequest()
{
    if (state_.RequestFaction >= 1 && state_.RequestFaction <= std::int64_t{core::kFactions}) {
        state_.Opposition[core::GroupOfFaction(state_.RequestFaction)] += kOffence;
    }
    core::GiveBack(screens_.frmMain);
}

}  // namespace events
