#include "events/action_cards.h"

#include "core/actions.h"
#include "core/cards.h"
#include "core/numbers.h"
#include "core/society.h"
#include "events/card_effects.h"
#include "events/card_view.h"
#include "month/banner.h"

#include <string>

namespace events {

namespace {

constexpr std::string_view kCard = "the card of this action";

std::string CardOf(const core::GameState& state)
{
    return "Actions/" + core::Digits(state.ActionChoice);
}

}  // namespace

ActionCards::ActionCards(core::GameState& state, core::Journal& journal, const files::ProgramFolder& folder,
                         const core::Variants& variants, Screens screens, media::Sound& sound,
                         Proposals& proposals)
    : state_(state)
    , journal_(journal)
    , folder_(folder)
    , variants_(variants)
    , screens_(screens)
    , sound_(sound)
    , proposals_(proposals)
{
    screens.frmShow.Command1.onClick = [this] {
        sound_.SoundClick();
        screens_.frmShow.Hide();
        screens_.frmActions.Show();
    };
    screens.frmShow.Command3.onClick = [this] {
        sound_.SoundClick();
        screens_.frmShow.Hide();
        MakeAction();
    };
}

void ActionCards::ShowAction()
{
    const files::Result<core::Card> card = core::ReadCard(folder_, CardOf(state_));
    if (!card) {
        TellBadCard(screens_.frmMonthBanner, kCard, card.Error());
        return;
    }
    screens_.frmShow.Show();
    screens_.frmShow.Label8.SetText("Police report for " + card->title);
    FillCard(screens_.frmShow, *card);
}

void ActionCards::MakeAction()
{
    files::Result<core::Card> card = core::ReadCard(folder_, CardOf(state_));
    if (!card) {
        TellBadCard(screens_.frmMonthBanner, kCard, card.Error());
        return;
    }
    variants_.Vary(core::Digits(state_.ActionChoice), {&card->result});
    core::Apply(card->effects, state_);
    month::Say(screens_.frmMonthBanner, card->result);
    ApplyActionEffect(state_.ActionChoice, state_);
    journal_.Add(core::Kind::Action, core::Who::Nobody, state_.ActionChoice);

    const auto finish = [this] { FinishAction(); };
    switch (state_.ActionChoice) {
    case core::kSackPoliceChief:
        newPoliceChief(finish);
        return;
    case core::kSackArmyChief:
        newArmyChief(finish);
        return;
    case core::kAskForAid:
        proposals_.AmericanAid();
        break;
    default:
        break;
    }
    finish();
}

void ActionCards::FinishAction()
{
    state_.ActionDone.at(static_cast<std::size_t>(std::int64_t{state_.ActionChoice})) = 1;
    core::FixNum(state_);
}

}  // namespace events
