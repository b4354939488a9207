#include "ui/toolkit/eye.h"

#include <algorithm>

namespace ui {

namespace {

// How one place lies to another, seen in the arrow's direction.
struct Offset {
    int ahead = 0;  // from middle to middle; below zero: behind
    int aside = 0;  // between the edges; 0 where both share a row or a column
};

Offset Between(const Rect& from, const Rect& to, Direction direction)
{
    const bool across = direction == Direction::Left || direction == Direction::Right;
    const int sign = direction == Direction::Right || direction == Direction::Down ? 1 : -1;
    const int middles = across ? 2 * (to.left - from.left) + to.width - from.width
                               : 2 * (to.top - from.top) + to.height - from.height;
    const int gap = across ? std::max(to.top - (from.top + from.height), from.top - (to.top + to.height))
                           : std::max(to.left - (from.left + from.width), from.left - (to.left + to.width));
    return {.ahead = sign * middles / 2, .aside = std::max(gap, 0)};
}

// The index of the place with the smallest cost; a cost below 0 rules a place out.
template <class Cost> std::optional<std::size_t> Cheapest(std::span<const Rect> places, const Cost& cost)
{
    std::optional<std::size_t> best;
    int lowest = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const int found = cost(places[i]);
        if (found >= 0 && (!best || found < lowest)) {
            best = i;
            lowest = found;
        }
    }
    return best;
}

}  // namespace

std::optional<std::size_t> NearestTowards(const Rect& from, std::span<const Rect> places, Direction direction)
{
    return Cheapest(places, [&](const Rect& place) {
        const Offset offset = Between(from, place, direction);
        return !place.Empty() && offset.ahead > 0 && offset.aside <= offset.ahead
                   ? offset.ahead + 2 * offset.aside
                   : -1;
    });
}

std::optional<std::size_t> RoundFromBehind(const Rect& from, std::span<const Rect> places,
                                           Direction direction)
{
    constexpr int kFarther = 4 * (kSpaceWidth + kSpaceHeight);  // than any two places are
    return Cheapest(places, [&](const Rect& place) {
        const Offset offset = Between(from, place, direction);
        return !place.Empty() && offset.ahead < 0 && offset.aside == 0 ? kFarther + offset.ahead : -1;
    });
}

}  // namespace ui
