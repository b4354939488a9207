#include "events/requests.h"

#include "core/cards.h"
#include "core/names.h"
#include "core/numbers.h"
#include "events/card_effects.h"
#include "events/card_view.h"
#include "events/request_draw.h"
#include "month/banner.h"

#include <string>

namespace events {

namespace {

constexpr std::string_view kCard = "this month's request";
constexpr std::int64_t kOffence = 10;  // percent of the faction that take a refusal ill

std::string NameOfCard(const core::GameState& state)
{
    return "M" + core::Digits(state.RequestDraw);
}

}  // namespace

Requests::Requests(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
                   const files::ProgramFolder& folder, const core::Variants& variants,
                   screens::FrmMonthBanner& banner, screens::FrmShow2& dialog, media::Sound& sound)
    : state_(state)
    , chance_(chance)
    , journal_(journal)
    , month_(month)
    , folder_(folder)
    , variants_(variants)
    , banner_(banner)
    , dialog_(dialog)
    , sound_(sound)
{
    dialog.Command1.onClick = [this] {
        sound_.SoundClick();
        dialog_.Hide();
        MakeRequest();
    };
    dialog.Command3.onClick = [this] {
        sound_.SoundClick();
        dialog_.Hide();
        DontMakeRequest();
    };
}

void Requests::Request()
{
    if (!DrawRequest(state_, chance_)) {
        month_.Close();
        return;
    }
    dialog_.Label8.SetText("A request from the " +
                           std::string(core::kGroupNames[core::GroupOfFaction(state_.RequestFaction)]));
    ShowAction2();
}

// What they say and what is answered belong together, so both follow the month.
files::Result<core::Card> Requests::ReadThisCard() const
{
    const std::string name = NameOfCard(state_);
    files::Result<core::Card> card = core::ReadCard(folder_, "Actions/" + name);
    if (card) {
        variants_.Vary(name, {&card->title, &card->result});
    }
    return card;
}

void Requests::ShowAction2()
{
    if (NobodyToRelease(state_)) {
        month_.Close();
        return;
    }
    month_.TakeMenu();
    const files::Result<core::Card> card = ReadThisCard();
    if (!card) {
        TellBadCard(banner_, kCard, card.Error());
        month_.Close();
        return;
    }
    dialog_.Label10.SetText(card->title);
    FillCard(dialog_, *card);
    journal_.Add(core::Kind::Request, core::FactionOf(state_.RequestFaction), state_.RequestDraw);
    dialog_.ShowModal();
}

void Requests::MakeRequest()
{
    const files::Result<core::Card> card = ReadThisCard();
    if (card) {
        core::Apply(card->effects, state_);
        month::Say(banner_, card->result);
        ApplyRequestEffect(state_.RequestDraw, state_);
        journal_.Add(core::Kind::Answer, core::FactionOf(state_.RequestFaction), 1);
    } else {
        TellBadCard(banner_, kCard, card.Error());
    }
    month_.Close();
}

void Requests::DontMakeRequest()
{
    if (state_.RequestFaction >= 1 && state_.RequestFaction <= std::int64_t{core::kFactions}) {
        state_.Opposition[core::GroupOfFaction(state_.RequestFaction)] += kOffence;
        journal_.Add(core::Kind::Answer, core::FactionOf(state_.RequestFaction), 0);
    }
    month_.Close();
}

}  // namespace events
