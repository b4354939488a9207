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

// By Level; what went beyond the last can only have been hard.
inline constexpr PerLevel<std::string_view> kLevelNames =
    std::to_array<std::string_view>({"Easy", "Normal", "Hard"});

// By War - 1.
inline constexpr std::size_t kNeighbours = 3;
inline constexpr std::array<std::string_view, kNeighbours> kNeighbourNames{"Hermosita", "Feraz", "Descalza"};

// "Workers" .. "Police"; nothing for a number that is no faction's.
constexpr std::string_view FactionName(std::int64_t number)
{
    return number >= 1 && number <= std::int64_t{kFactions} ? kGroupNames[GroupOfFaction(number)]
                                                            : std::string_view{};
}

// "Hermosita" .. "Descalza", by War; nothing in peace.
constexpr std::string_view NeighbourName(std::int64_t war)
{
    return war >= 1 && war <= std::int64_t{kNeighbours} ? kNeighbourNames[static_cast<std::size_t>(war - 1)]
                                                        : std::string_view{};
}

}  // namespace core
