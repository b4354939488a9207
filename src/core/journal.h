// The journal: what happened to the country, in the order in which it happened.
//
//     journal.Add(Kind::Battle, Who::Nobody, won);     // a routine, in one line, where it happens
//     journal.Listen([](const core::Note& note) { ... });
//
// It is filled in passing and read by whoever tells the month again: no rule reads it, and nothing in it is
// saved. Its notes are handed over when the month is closed; what the president does before that belongs to
// the month that he is about to end.
#pragma once

#include "core/game_state.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace core {

enum class Kind {
    //               who                         amount
    Month,       // nobody                      dollars that the treasury gained; the months are counted
    Action,      // nobody                      the presidential action's number, 1 .. 25
    Aid,         // the Americans               dollars; 0 when they refused
    NewChief,    // the army or the police      his ability
    Disaster,    // nobody                      1 drought, 2 hurricane, 3 earthquake
    GoodNews,    // nobody                      0
    ChiefGone,   // the army or the police      the newspaper's story, 1 .. 3
    Damage,      // the guerrillas              dollars that the state pays
    Request,     // a faction                   its number, 1 .. 7
    Demand,      // the Americans               1 .. 3 war on a neighbour, 4 naval base, 5 air base
    Claim,       // a faction                   dollars
    Answer,      // whose question it was       1 yes, 0 no
    WarBegins,   // a neighbour                 0
    Base,        // the Americans               how many they have now
    War,         // a neighbour                 1 won, 0 lost
    Attempt,     // a faction or the Americans  0
    Survived,    // a faction                   0
    Executed,    // a faction                   people
    Spared,      // a faction                   0
    Coup,        // the army or the police      0
    Revolution,  // the faction that began it   the rebels' share of the country's strength, percent
    Revolt,      // guerrillas or prisoners     the same
    Joined,      // a faction                   its strength
    Ally,        // a faction                   the strength of the president's side
    Battle,      // nobody                      1 won, 0 lost
    Flight,      // nobody                      1 by helicopter, 0 on foot
    End,         // who killed him, if one did  1 alive abroad, 0 dead
};

// The factions by their number, 1 .. 7, and everybody else whom a note can be about.
enum class Who {
    Nobody,
    Workers,
    Peasants,
    Businessmen,
    Industrialists,
    Landowners,
    Army,
    Police,
    Guerrillas,
    Prisoners,
    Hermosita,
    Feraz,
    Descalza,
    Americans,
};
Who WhoIs(Group group);
Who FactionOf(std::int64_t number);  // nobody when there is none of that number
Who NeighbourOf(std::int64_t war);   // the same, by War

std::string_view NameOf(Kind kind);  // "disaster"
std::string_view NameOf(Who who);    // "Workers"; empty for nobody

struct Note {
    Kind kind{};
    Who who{};
    std::int64_t amount{};
    std::int64_t month{};  // MonthsInPower

    bool operator==(const Note&) const = default;
};

class Journal {
public:
    explicit Journal(const GameState& state) : state_(state) {}

    void Add(Kind kind, Who who = Who::Nobody, std::int64_t amount = 0);

    // Since the last month was closed.
    const std::vector<Note>& Notes() const { return notes_; }
    void Clear() { notes_.clear(); }

    // Each note as it is made.
    void Listen(std::function<void(const Note&)> listener) { listeners_.push_back(std::move(listener)); }

private:
    const GameState& state_;
    std::vector<Note> notes_;
    std::vector<std::function<void(const Note&)>> listeners_;
};

}  // namespace core
