// What the groups are called, in the record's field names and in the game's messages alike.
#pragma once

#include <array>
#include <string_view>

namespace core {

// By Group.
inline constexpr std::array<std::string_view, 10> kGroupNames{
    "Workers", "Peasants", "Businessmen", "Industrialists", "Landowners",
    "Army",    "Police",   "Guerrillas",  "Prisoners",      "PersonalArmy",
};

}  // namespace core
