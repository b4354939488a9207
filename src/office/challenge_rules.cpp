#include "office/challenge_rules.h"

#include "core/actions.h"
#include "core/numbers.h"

#include <algorithm>
#include <array>

namespace office {

namespace {

using core::Kind;
using core::Note;
using core::Who;

constexpr std::int64_t kAgainstGuerrillas = 7;  // the request for a campaign
constexpr std::size_t kNamed = 2;               // on the stamp

// A presidency from its first month to its end.
struct Reign {
    std::int64_t level = 0;
    bool carriedAbroad = false;
    std::vector<Note> notes;
};

bool Has(const Reign& reign, Kind kind)
{
    return std::any_of(reign.notes.begin(), reign.notes.end(),
                       [kind](const Note& note) { return note.kind == kind; });
}

bool Did(const Reign& reign, std::int64_t action)
{
    return std::any_of(reign.notes.begin(), reign.notes.end(), [action](const Note& note) {
        return note.kind == Kind::Action && note.amount == action;
    });
}

// How often he was asked for something and answered so. The answer follows its question, though not at once.
struct Answers {
    std::size_t granted = 0;
    std::size_t refused = 0;
    bool campaign = false;  // a granted one
};
Answers AnswersOf(const Reign& reign)
{
    Answers answers;
    const Note* question = nullptr;
    for (const Note& note : reign.notes) {
        if (note.kind == Kind::Request || note.kind == Kind::Demand || note.kind == Kind::Claim) {
            question = &note;
        } else if (note.kind == Kind::Answer && question != nullptr) {
            if (question->kind == Kind::Request) {
                ++(note.amount == 1 ? answers.granted : answers.refused);
                answers.campaign |= note.amount == 1 && question->amount == kAgainstGuerrillas;
            }
            question = nullptr;
        }
    }
    return answers;
}

bool HardAndHonest(const Reign& reign)
{
    return reign.level == core::kHard && !reign.carriedAbroad;
}

bool OnlyPolice(const Reign& reign)
{
    return Has(reign, Kind::Ally) &&
           std::all_of(reign.notes.begin(), reign.notes.end(),
                       [](const Note& note) { return note.kind != Kind::Ally || note.who == Who::Police; });
}

bool Unbought(const Reign& reign)
{
    return !Has(reign, Kind::Base) && !Did(reign, core::kCourtAmericans) && !Did(reign, core::kAskForAid);
}

bool NeverSaidNo(const Reign& reign)
{
    const Answers answers = AnswersOf(reign);
    return answers.refused == 0 && answers.granted >= kFewestRequests;
}

// The landowners' help is paid for with a campaign, too.
bool AtPeace(const Reign& reign)
{
    const bool campaign = std::any_of(reign.notes.begin(), reign.notes.end(), [](const Note& note) {
        return note.kind == Kind::Ally && note.who == Who::Landowners;
    });
    return !campaign && !AnswersOf(reign).campaign && !Has(reign, Kind::WarBegins) &&
           !Did(reign, core::kAttackGuerrillas);
}

bool CleanHands(const Reign& reign)
{
    return !Has(reign, Kind::Executed) && !Did(reign, core::kExecutePrisoners);
}

bool OnFoot(const Reign& reign)
{
    return std::any_of(reign.notes.begin(), reign.notes.end(),
                       [](const Note& note) { return note.kind == Kind::Flight && note.amount == 0; });
}

bool Undivided(const Reign& reign)
{
    return !Did(reign, core::kSellIsland);
}

struct Row {
    std::string_view name;
    bool (*met)(const Reign& reign);
};
// By Challenge.
constexpr std::array<Row, kChallenges> kRows{{
    {"Hard and honest", HardAndHonest},
    {"Only the police", OnlyPolice},
    {"Unbought", Unbought},
    {"Never said no", NeverSaidNo},
    {"At peace", AtPeace},
    {"Clean hands", CleanHands},
    {"On foot", OnFoot},
    {"Undivided", Undivided},
}};

// The first month is closed as the second; a game that was saved before has a row for the first.
bool IsWhole(const persist::Chronicle& closed, std::int64_t lastMonth)
{
    constexpr std::int64_t kFirstClosed = 2;
    std::int64_t expected = closed.empty() ? 0 : closed.front().month;
    for (const persist::ChronicleRow& row : closed) {
        if (row.month != expected++) {
            return false;
        }
    }
    return !closed.empty() && closed.front().month <= kFirstClosed && closed.back().month + 1 >= lastMonth;
}

}  // namespace

std::string_view NameOf(Challenge challenge)
{
    return kRows.at(static_cast<std::size_t>(challenge)).name;
}

std::vector<Challenge> ChallengesMet(const core::GameState& state, const persist::Chronicle& closed,
                                     const std::vector<core::Note>& sinceThen)
{
    std::vector<Challenge> met;
    if (state.Dead == 1 || state.MonthsInPower < kFewestMonths || !IsWhole(closed, state.MonthsInPower)) {
        return met;
    }
    Reign reign{.level = state.Difficulty, .carriedAbroad = state.SwissBank != 0, .notes = {}};
    for (const persist::ChronicleRow& row : closed) {
        reign.carriedAbroad |= row.swiss != 0;
        reign.notes.insert(reign.notes.end(), row.notes.begin(), row.notes.end());
    }
    reign.notes.insert(reign.notes.end(), sinceThen.begin(), sinceThen.end());
    for (std::size_t each = 0; each < kRows.size(); ++each) {
        if (kRows[each].met(reign)) {
            met.push_back(static_cast<Challenge>(each));
        }
    }
    return met;
}

std::string StampOf(const std::vector<Challenge>& met)
{
    std::string stamp;
    for (std::size_t each = 0; each < std::min(met.size(), kNamed); ++each) {
        stamp.append(stamp.empty() ? "Stamped: " : ", ").append(NameOf(met[each]));
    }
    if (met.size() > kNamed) {
        stamp += " and " + core::Digits(static_cast<std::int64_t>(met.size() - kNamed)) + " more";
    }
    return stamp;
}

}  // namespace office
