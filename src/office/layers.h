// What the president sees through his window: which pieces lie over the empty office, by what the record says.
//
//     banner.SetScene([&state] { return office::NightScene(state); });
//
// The window tells only what he could read on his screens: without a police report the square, the mountain
// and the prison lie in fog. A thing is there or not there; nothing is said by colour alone.
#pragma once

#include "core/game_state.h"
#include "ui/toolkit/geometry.h"
#include "ui/toolkit/scene.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace office {

// What the window can tell, each in steps from 0.
enum class Aspect : std::uint8_t {
    Always,      // 0
    War,         // 1 with a neighbour; the campaign in the mountains is none
    Guerrillas,  // 0 none or not known, 1 some, 2 strong enough to attack the palace
    Prisoners,   // the same, to break out
    NavalBase,   // 1 granted
    AirBase,
    Islands,     // sold, 0 to 3
    Treasury,    // 0 empty or in debt, 1 money in it
    Fog,         // 1 no police report
    Square,      // 0 empty or not known, 1 and 2 admirers, 3 and 4 people who may join, or start, an uprising
    Angriest,    // the faction with the highest opposition, 1 Workers to 7 Police; 0 unless it may join
    Army,        // 0 no chief or not known, 1 content, 2 may join
    Helicopter,  // 1 owned
    Age,         // of the presidency: 0 the first year, 1 the second, 2 the third and fourth, 3 longer
    Guards,      // 0 no personal army, 1 one, 2 a large one
    Envelopes,   // 0 an empty Swiss account, to 5
    Count,
};

using View = std::array<int, static_cast<std::size_t>(Aspect::Count)>;

// The step of each aspect.
View Look(const core::GameState& state);

// A picture, and the steps of its aspect at which it is there.
struct Layer {
    std::string_view picture;
    ui::Rect place;
    Aspect aspect;
    int from;
    int to;
};

// From the back to the front.
std::span<const Layer> Layers();

ui::Scene NightScene(const core::GameState& state);
// The same office while an uprising is fought: nothing but the fire is to be seen.
ui::Scene RevoltScene();

}  // namespace office
