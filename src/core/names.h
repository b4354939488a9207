// What the groups and the neighbours are called, in the record's field names and in the game's messages alike.
#pragma once

#include "core/game_state.h"

#include <array>
#include <string_view>

namespace core {

// The personal army is no group, but is counted beside them.
inline constexpr PerGroupAndPersonalArmy<std::string_view> kGroupNames{
    "Workers", "Peasants", "Businessmen", "Industrialists", "Landowners",
    "Army",    "Police",   "Guerrillas",  "Prisoners",      "PersonalArmy",
};

// By War - 1.
inline constexpr std::size_t kNeighbours = 3;
inline constexpr std::array<std::string_view, kNeighbours> kNeighbourNames{"Hermosita", "Feraz", "Descalza"};

}  // namespace core
