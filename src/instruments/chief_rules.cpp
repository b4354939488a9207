#include "instruments/chief_rules.h"

#include "core/officers.h"

#include <algorithm>
#include <string>

namespace instruments {

namespace {

constexpr const char* kEmpty = "EMPTY";
constexpr std::int64_t kAmbitious = 6;
constexpr double kLoyalty = 17;

}  // namespace

bool IsUsed(const core::OfficerRow& row)
{
    return core::TextOf(row[core::kSurname]) == kEmpty;
}

std::size_t UsedRows(const core::OfficerTable& table)
{
    return static_cast<std::size_t>(std::count_if(table.begin(), table.end(), IsUsed));
}

bool IsCandidate(const core::OfficerTable& table, std::size_t row)
{
    return row >= 1 && row < table.size() && !IsUsed(table[row]);
}

bool HasCandidates(const core::OfficerTable& table)
{
    return !std::all_of(table.begin() + 1, table.end(), IsUsed);
}

void Appoint(core::OfficerTable& table, std::size_t row)
{
    table[0] = table[row];
    table[row] = {std::string(), std::string(kEmpty), core::i32{0}, core::i32{0}};
}

bool ChiefBetrays(const core::GameState& state, core::Chance& chance, const core::OfficerTable& chiefs,
                  core::Group force, std::int64_t strengthNeeded)
{
    const std::int64_t ambition = core::Ambition(chiefs);
    if (state.Strength[force] < strengthNeeded || ambition < kAmbitious) {
        return false;
    }
    return chance.Draw(kLoyalty - static_cast<double>(ambition + state.Difficulty), 1) <= 2;
}

}  // namespace instruments
