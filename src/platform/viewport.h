// Where the 800 x 600 picture space lies on a surface: as large as fits, 4:3, in the middle.
//
//     const Viewport viewport = Viewport::Fit(1280, 1024);   // scale 1.6, 32 px of bar above and below
//     viewport.Cover(control.Place());                       // the surface pixels it touches
//
// Edges are rounded to whole pixels here and nowhere else, so that things that touch in the picture space
// touch on the surface too, whatever the scale.
#pragma once

#include "ui/toolkit/geometry.h"

#include <SDL2/SDL_rect.h>

#include <cmath>
#include <optional>

namespace platform {

// A rectangle of the picture space; halves of pixels are allowed.
struct BoxF {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    constexpr BoxF() = default;
    constexpr BoxF(double x, double y, double w, double h) : left(x), top(y), width(w), height(h) {}
    constexpr BoxF(const ui::Rect& r) : left(r.left), top(r.top), width(r.width), height(r.height) {}

    constexpr double Right() const { return left + width; }
    constexpr double Bottom() const { return top + height; }
    constexpr double MiddleX() const { return left + width / 2; }
    constexpr double MiddleY() const { return top + height / 2; }
    constexpr BoxF Grown(double by) const { return {left - by, top - by, width + 2 * by, height + 2 * by}; }
    constexpr BoxF Moved(double dx, double dy) const { return {left + dx, top + dy, width, height}; }
};

struct Viewport {
    double scale = 1.0;
    SDL_Rect place{0, 0, ui::kSpaceWidth, ui::kSpaceHeight};

    static Viewport Fit(int width, int height);

    // The surface's column or row of an edge.
    int X(double x) const { return place.x + static_cast<int>(std::lround(x * scale)); }
    int Y(double y) const { return place.y + static_cast<int>(std::lround(y * scale)); }
    // A width of lines: at least one pixel.
    int Thickness(double width) const;

    SDL_Rect Snap(const BoxF& box) const;        // rounded edges, at least one pixel each way
    SDL_Rect Cover(const ui::Rect& rect) const;  // every pixel the rectangle touches
    ui::Point ToPicture(int x, int y) const;     // may lie outside the picture space
    bool Contains(int x, int y) const;           // false in the bars

    bool operator==(const Viewport& other) const;
};

}  // namespace platform
