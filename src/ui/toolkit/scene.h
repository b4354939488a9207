// What lies behind a screen's controls: pictures, from the back to the front.
//
// Places are those of the picture space. One that lies outside of it is seen where the window is wider or
// taller than the space.
#pragma once

#include "ui/toolkit/geometry.h"

#include <string_view>
#include <vector>

namespace ui {

struct ScenePiece {
    std::string_view picture;  // a file below the program folder; must outlive the scene
    Rect place;

    bool operator==(const ScenePiece&) const = default;
};

using Scene = std::vector<ScenePiece>;

}  // namespace ui
