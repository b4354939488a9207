#include "core/journal.h"

#include "core/names.h"

#include <array>

namespace core {

namespace {

// By Kind.
constexpr auto kKinds = std::to_array<std::string_view>({
    "month",  "action",  "aid",      "new-chief", "disaster", "good-news",  "chief-gone",
    "damage", "request", "demand",   "claim",     "answer",   "war-begins", "base",
    "war",    "attempt", "survived", "executed",  "spared",   "coup",       "revolution",
    "revolt", "joined",  "ally",     "battle",    "flight",   "end",
});
static_assert(kKinds.size() == static_cast<std::size_t>(Kind::End) + 1);

bool LiesIn(std::int64_t number, std::size_t last)
{
    return number >= 1 && number <= static_cast<std::int64_t>(last);
}

}  // namespace

Who WhoIs(Group group)
{
    return group < kGroups ? static_cast<Who>(group + 1) : Who::Nobody;
}

Who FactionOf(std::int64_t number)
{
    return LiesIn(number, kFactions) ? static_cast<Who>(number) : Who::Nobody;
}

Who NeighbourOf(std::int64_t war)
{
    return LiesIn(war, kNeighbours) ? static_cast<Who>(static_cast<std::int64_t>(Who::Prisoners) + war)
                                    : Who::Nobody;
}

std::string_view NameOf(Kind kind)
{
    return kKinds.at(static_cast<std::size_t>(kind));
}

std::string_view NameOf(Who who)
{
    if (who == Who::Nobody) {
        return {};
    }
    if (who == Who::Americans) {
        return "Americans";
    }
    const std::size_t number = static_cast<std::size_t>(who) - 1;
    return number < kGroups ? kGroupNames[number] : kNeighbourNames.at(number - kGroups);
}

void Journal::Add(Kind kind, Who who, std::int64_t amount)
{
    const Note note{kind, who, amount, state_.MonthsInPower};
    notes_.push_back(note);
    for (const auto& listener : listeners_) {
        listener(note);
    }
}

}  // namespace core
