#include "threats/revolution_rules.h"

#include "core/names.h"
#include "core/numbers.h"
#include "core/society.h"
#include "core/thresholds.h"

#include <string_view>
#include <vector>

namespace threats {

namespace {

using core::GameState;

bool Dares(const GameState& state, core::Chance& chance, std::size_t faction, std::int64_t die)
{
    const bool hatesEnough =
        core::Real(state.Opposition[faction - 1]) / 10 > core::Real(chance.Between(1, die));
    return hatesEnough && state.RevolutionWait[faction] == 0;
}

void DrawJoiners(GameState& state, core::Chance& chance, std::size_t starter)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (n != starter && state.Opposition[n - 1] >= core::kJoinsRevolutionAt &&
            Dares(state, chance, n, 10)) {
            state.Revolutionaries[n] = 1;
        }
    }
}

std::vector<std::string_view> Joined(const GameState& state)
{
    std::vector<std::string_view> names;
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        const auto number = static_cast<std::int64_t>(n);
        if (state.Revolutionaries[n] == 1 && state.RevolutionStarter != number) {
            names.push_back(core::FactionName(number));
        }
    }
    return names;
}

// " " + " the Workers" + ", Peasants" + " and Police": the first blank stays, so that two stand before "the".
std::string List(const std::vector<std::string_view>& names)
{
    std::string list = " ";
    for (std::size_t i = 0; i < names.size(); ++i) {
        const bool last = i + 1 == names.size();
        list += i == 0 ? " the " : last ? " and " : ", ";
        list += names[i];
    }
    return list;
}

constexpr std::int64_t kThrows = 30;
bool ThrowEscapes(const GameState& state, std::int64_t thrown)
{
    const std::int64_t luck = thrown + state.Strength[core::PersonalArmy];
    return core::Real(state.RevolutionaryStrength) / 10 <= core::Real(luck);
}

}  // namespace

void DrawRevolution(GameState& state, core::Chance& chance)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (state.Strength[n - 1] >= core::kStrongFaction &&
            state.Opposition[n - 1] >= core::kStartsRevolutionAt && Dares(state, chance, n, 12)) {
            state.RevolutionStarter = static_cast<std::int64_t>(n);
            state.Revolutionaries[n] = 1;
            DrawJoiners(state, chance, n);
            return;
        }
    }
}

void MeasureRevolution(GameState& state)
{
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (state.Revolutionaries[n] == 1) {
            state.RevolutionaryStrength += state.Strength[n - 1];
        }
    }
    core::UpdateTotalStrength(state);
    state.RevolutionaryPct =
        core::RoundHalfEven(core::PercentOf(state.RevolutionaryStrength, state.TotalStrength));
}

std::string RevolutionMessage(const GameState& state)
{
    const std::string starter(core::FactionName(state.RevolutionStarter));
    const std::string question =
        " strength is at " + core::Digits(state.RevolutionaryPct) + "% what do you want to do?";
    const std::vector<std::string_view> joined = Joined(state);
    if (joined.empty()) {
        return "Mr.President, the " + starter + " started a war against you! Their" + question;
    }
    return "Revolution started by the " + starter + ", but they were joined by" + List(joined) +
           "! Revolutioner's" + question;
}

bool HelicopterEscapes(const GameState& state, core::Chance& chance)
{
    return ThrowEscapes(state, chance.Between(1, kThrows));
}

std::int64_t ThrowsThatEscape(const GameState& state)
{
    std::int64_t throws = 0;
    for (std::int64_t thrown = 1; thrown <= kThrows; ++thrown) {
        throws += ThrowEscapes(state, thrown) ? 1 : 0;
    }
    return throws;
}

bool WalkEscapes(core::Chance& chance)
{
    return chance.Between(1, 10) == 2;
}

}  // namespace threats
