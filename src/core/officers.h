// The officers: eleven for the army and eleven for the police, row 0 of each table being the chief in
// office. Their surnames come from data/names, beginning at a place that each game draws.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"
#include "files/program_folder.h"
#include "files/result.h"
#include "files/text_records.h"

#include <string>
#include <vector>

namespace core {

// A game draws its first name from the first 88; the army's last officer may take number 120.
inline constexpr std::size_t kNamesNeeded = 121;

// The surnames of data/names, checked: at least kNamesNeeded, none of them empty.
files::Result<std::vector<std::string>> ReadNames(const files::ProgramFolder& folder);
files::Result<std::vector<std::string>> ParseNames(const std::vector<files::Item>& items);

// Names by number, for a country whose list of names was lost: "NUMBER 1" and so on.
std::vector<std::string> NamesByNumber();

// Fills both tables anew. names holds at least kNamesNeeded.
//
//     police ability 2..10, army ability 1..10; ambition follows the ability (kAmbitions)
//     rank: one draw of three; surname: the next name
//     then the two chiefs in office are adjusted to the level and both gain one point of ability
void CreateChiefs(GameState& state, Chance& chance, const std::vector<std::string>& names);

// What an officer's row says.
std::string DisplayName(const OfficerRow& row);  // rank, blank, surname
std::string TextOf(const Cell& cell);            // a number in plain digits
std::int64_t NumberOf(const Cell& cell);         // 0 when it holds no number
inline std::int64_t Ability(const OfficerTable& table)
{
    return NumberOf(table[0][kAbility]);
}
inline std::int64_t Ambition(const OfficerTable& table)
{
    return NumberOf(table[0][kAmbition]);
}
// "GENERAL VALDORO 9/5": the chief in office with ability and ambition.
std::string ChiefInOffice(const OfficerTable& table);

}  // namespace core
