// Where an arrow key leads: to the place that the eye would go to.
//
//     const auto next = NearestTowards(focus, places, Direction::Right);   // an index into places, or none
//
// A place counts when its middle lies in the arrow's direction, no farther aside than ahead. The nearest wins,
// a step aside counting as two ahead, so that columns and rows are kept where there are any. Where nothing
// lies ahead the arrow comes round from the other side of the same row or column. An empty place counts never.
#pragma once

#include "ui/toolkit/geometry.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace ui {

enum class Direction : std::uint8_t { Up, Down, Left, Right };

std::optional<std::size_t> NearestTowards(const Rect& from, std::span<const Rect> places,
                                          Direction direction);
std::optional<std::size_t> RoundFromBehind(const Rect& from, std::span<const Rect> places,
                                           Direction direction);

}  // namespace ui
