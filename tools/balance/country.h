// A presidency on the game's own screens, with a bot at the desk: what he wants becomes clicks, and what asks is
// put to him.
//
//     Country country(deck);
//     country.Begin(core::kNormal, 7);
//     country.Act(core::kAttackGuerrillas, bot);
//     country.NextMonth(bot);
//
// A moment of it can be taken and put into another country, so that a bot may try a future before he lives in it.
#pragma once

#include "app/game.h"
#include "balance/deck.h"
#include "balance/tally.h"
#include "core/actions.h"
#include "core/chance.h"
#include "core/game_state.h"
#include "media/silent_host.h"

#include <bitset>
#include <cstdint>
#include <vector>

namespace balance {

class Country;

// Who decides. Questions are put in the middle of a month.
class Bot {
public:
    virtual ~Bot() = default;
    virtual void Begin(const Country&) {}
    virtual void Govern(Country& country) = 0;                       // the month, up to "Next month"
    virtual std::int64_t Ally(const Country& country) = 0;           // whom to fight with, 1 .. 7; 0 flees
    virtual bool Execute(const Country&) { return false; }           // the plotters
    virtual bool Grant(const Country&) { return true; }              // RequestDraw
    virtual bool Accept(const Country&) { return true; }             // DealCode
    virtual std::size_t Officer(const Country& country, bool army);  // 1 .. 10; the least ambitious
};

class Country {
    const Deck& deck_;
    media::SilentHost host_;
    Game game_;

public:
    explicit Country(const Deck& deck);

    core::GameState& state;
    core::Chance& chance;
    Ending ending = Ending::None;
    std::bitset<kActions> banned;  // actions that this game does without
    Tally* tally = nullptr;        // what happened; an imagined future keeps none

    void Begin(std::int64_t level, std::uint64_t seed);
    const Deck& Cards() const { return deck_; }

    bool Allows(std::int64_t action) const;
    bool Act(std::int64_t action, Bot& bot);  // whether it was allowed
    bool Raise(core::Group faction);          // a tax step; false at the highest
    void Save(std::int64_t dollars);          // to Switzerland, as much of it as there is

    // False: the treasury does not cover the month, and nothing has happened.
    bool NextMonth(Bot& bot);

    // The country at the desk, or before an uprising.
    struct Moment {
        core::GameState state;
        core::Chance chance;
        bool uprising = false;
    };
    Moment Now() const;
    // Goes on from there; a question about an uprising is put to the bot at once.
    void Put(const Moment& moment, Bot& bot);

    std::int64_t Points() const;  // in the hall; 0 for the dead

private:
    struct Question {
        const ui::Form* form;
        void (Country::*answer)(Bot&);
    };
    std::vector<Question> Questions();
    void Click(ui::Control& control) { desktop_.Click(control); }
    void ClearTheDesk();
    void Carry(Bot& bot);
    bool Answer(Bot& bot);
    void Hear(const core::Note& note);
    void Count(Link link);
    void NotePage(int page);

    void Face(Bot& bot);
    void ChooseAlly(Bot& bot);
    void ChooseOfficer(Bot& bot);
    void AnswerRequest(Bot& bot);
    void AnswerDeal(Bot& bot);
    void AnswerPlot(Bot& bot);
    void Nod(Bot& bot);

    ui::Desktop& desktop_;
    screens::Screens& screens_;
    std::vector<Question> questions_;
    const ui::Form* asking_ = nullptr;
    std::int64_t ally_ = 0;  // whom the bot has chosen
    Link link_ = Link::Quiet;
    core::Kind last_ = core::Kind::Month;
    bool asked_ = false;   // something was asked for or given this month
    bool struck_ = false;  // by the Americans
};

}  // namespace balance
