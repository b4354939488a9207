// Places on the game's picture space, which is always 800 x 600 pixels whatever the window's size.
#pragma once

#include <algorithm>

namespace ui {

inline constexpr int kSpaceWidth = 800;
inline constexpr int kSpaceHeight = 600;

struct Point {
    int x = 0;
    int y = 0;
};

struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr int Right() const { return left + width; }
    constexpr int Bottom() const { return top + height; }
    constexpr bool Empty() const { return width <= 0 || height <= 0; }
    constexpr bool Contains(Point p) const
    {
        return p.x >= left && p.x < Right() && p.y >= top && p.y < Bottom();
    }
    constexpr bool Contains(const Rect& r) const
    {
        return r.left >= left && r.Right() <= Right() && r.top >= top && r.Bottom() <= Bottom();
    }
    constexpr bool Overlaps(const Rect& r) const
    {
        return r.left < Right() && left < r.Right() && r.top < Bottom() && top < r.Bottom();
    }
    constexpr Rect Grown(int by) const { return {left - by, top - by, width + 2 * by, height + 2 * by}; }
    constexpr bool operator==(const Rect&) const = default;
};

inline constexpr Rect kSpace{0, 0, kSpaceWidth, kSpaceHeight};

// The smallest rectangle that holds both; an empty one adds nothing.
constexpr Rect Union(const Rect& a, const Rect& b)
{
    if (a.Empty()) {
        return b;
    }
    if (b.Empty()) {
        return a;
    }
    const int left = std::min(a.left, b.left);
    const int top = std::min(a.top, b.top);
    return {left, top, std::max(a.Right(), b.Right()) - left, std::max(a.Bottom(), b.Bottom()) - top};
}

constexpr Rect Intersection(const Rect& a, const Rect& b)
{
    const int left = std::max(a.left, b.left);
    const int top = std::max(a.top, b.top);
    const Rect both{left, top, std::min(a.Right(), b.Right()) - left, std::min(a.Bottom(), b.Bottom()) - top};
    return both.Empty() ? Rect{} : both;
}

}  // namespace ui
