#include "core/officers.h"

#include "core/numbers.h"
#include "files/text_records.h"

#include <algorithm>

namespace core {

namespace {

constexpr std::string_view kNamesFile = "data/names";
constexpr std::int64_t kLastNameSeed = 109;  // from a later place a table would run out of names

constexpr std::string_view kRanks[] = {"MAJOR", "COLONEL", "GENERAL"};  // by draws 1, 2, 3

struct AmbitionRange {
    std::int64_t low, high;
};
// By ability, 0 not used: who can do more wants more.
constexpr AmbitionRange kAmbitions[] = {
    {0, 0}, {1, 4}, {1, 4}, {2, 5}, {2, 5}, {3, 6}, {4, 7}, {5, 8}, {6, 9}, {7, 10}, {8, 10},
};

struct Adjustment {
    OfficerTable GameState::*table;
    Level level;
    std::int64_t low, high;  // applies while the ability lies here
    OfficerColumn column;
    std::int64_t change;
};
// What the level does to the chiefs in office, in this order.
// clang-format off
constexpr Adjustment kAdjustments[] = {
    // table                   level    ability  changes     by
    {&GameState::ArmyChiefs,   kEasy,   9, 9,    kAmbition, -1},
    {&GameState::ArmyChiefs,   kEasy,   0, 7,    kAbility,  +2},
    {&GameState::ArmyChiefs,   kNormal, 0, 7,    kAbility,  +1},
    {&GameState::PoliceChiefs, kEasy,   9, 9,    kAbility,  -1},
    {&GameState::PoliceChiefs, kEasy,   0, 7,    kAbility,  +2},
    {&GameState::PoliceChiefs, kNormal, 0, 7,    kAbility,  +1},
};
// clang-format on

void Set(Cell& cell, std::int64_t number)
{
    cell = i32{number};
}

void DrawCharacters(OfficerTable& table, Chance& chance, std::int64_t lowestAbility)
{
    for (OfficerRow& row : table) {
        Set(row[kAbility], chance.Between(lowestAbility, 10));
    }
    for (OfficerRow& row : table) {
        const AmbitionRange range = kAmbitions[static_cast<std::size_t>(NumberOf(row[kAbility]))];
        Set(row[kAmbition], chance.Between(range.low, range.high));
    }
}

// Names number seed + 1 and the ten behind it.
void GiveNames(OfficerTable& table, Chance& chance, const std::vector<std::string>& names, std::int64_t seed)
{
    std::size_t next = static_cast<std::size_t>(std::max<std::int64_t>(seed, 0)) + 1;
    for (OfficerRow& row : table) {
        row[kRank] = std::string(kRanks[chance.Between(1, 3) - 1]);
        row[kSurname] = names[next % names.size()];
        ++next;
    }
}

void AdjustChiefs(GameState& state)
{
    for (const Adjustment& a : kAdjustments) {
        OfficerRow& chief = (state.*a.table)[0];
        const std::int64_t ability = NumberOf(chief[kAbility]);
        if (state.Difficulty == a.level && ability >= a.low && ability <= a.high) {
            Set(chief[a.column], NumberOf(chief[a.column]) + a.change);
        }
    }
    for (OfficerTable* table : {&state.ArmyChiefs, &state.PoliceChiefs}) {
        Set((*table)[0][kAbility], std::min<std::int64_t>(Ability(*table) + 1, 10));
    }
}

}  // namespace

files::Result<std::vector<std::string>> ReadNames(const files::ProgramFolder& folder)
{
    const files::Result<std::vector<files::Item>> items = folder.Items(kNamesFile);
    return items ? ParseNames(*items) : items.Error();
}

files::Result<std::vector<std::string>> ParseNames(const std::vector<files::Item>& items)
{
    std::vector<std::string> names;
    for (const files::Item& item : items) {
        if (item.text.empty()) {
            return files::FileError{std::string(kNamesFile), item.line,
                                    "expected a surname, found an empty item"};
        }
        names.push_back(item.text);
    }
    if (names.size() < kNamesNeeded) {
        const int last = items.empty() ? 0 : items.back().line;
        return files::FileError{std::string(kNamesFile), last,
                                "expected at least " + std::to_string(kNamesNeeded) + " surnames, found " +
                                    std::to_string(names.size())};
    }
    return names;
}

std::vector<std::string> NamesByNumber()
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kNamesNeeded; ++i) {
        names.push_back("NUMBER " + std::to_string(i));
    }
    return names;
}

void CreateChiefs(GameState& state, Chance& chance, const std::vector<std::string>& names)
{
    DrawCharacters(state.PoliceChiefs, chance, 2);
    GiveNames(state.PoliceChiefs, chance, names, state.ChiefNameSeed);
    DrawCharacters(state.ArmyChiefs, chance, 1);
    const std::int64_t next = state.ChiefNameSeed + static_cast<std::int64_t>(kOfficers);
    state.ChiefNameSeed = next > kLastNameSeed ? 1 : next;
    GiveNames(state.ArmyChiefs, chance, names, state.ChiefNameSeed);
    AdjustChiefs(state);
}

std::string TextOf(const Cell& cell)
{
    if (const auto* text = std::get_if<std::string>(&cell)) {
        return *text;
    }
    return std::holds_alternative<i32>(cell) ? Digits(NumberOf(cell)) : std::string();
}

std::int64_t NumberOf(const Cell& cell)
{
    const auto* number = std::get_if<i32>(&cell);
    return number == nullptr ? 0 : std::int64_t{*number};
}

std::string DisplayName(const OfficerRow& row)
{
    return TextOf(row[kRank]) + " " + TextOf(row[kSurname]);
}

std::string ChiefInOffice(const OfficerTable& table)
{
    return DisplayName(table[0]) + " " + TextOf(table[0][kAbility]) + "/" + TextOf(table[0][kAmbition]);
}

}  // namespace core
