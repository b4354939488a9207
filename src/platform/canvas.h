// Flat drawing on a 32-bit surface: rectangles, rounded rectangles, polygons, lines and letters.
//
//     Canvas canvas(surface, viewport);
//     const auto clip = canvas.Clipped(dirty);          // until the end of the block
//     canvas.Rounded(button, 5, Ink::Shade(kTop, kBottom));
//
// Places are those of the picture space; the viewport turns them into whole pixels, so straight edges are
// sharp at every scale and only curves are smoothed. What is drawn depends on the place alone and never on
// the clip: a part that is painted anew equals the same part of a whole painting, pixel for pixel.
#pragma once

#include "platform/viewport.h"
#include "ui/toolkit/color.h"

#include <SDL2/SDL_surface.h>

#include <cstdint>
#include <span>
#include <vector>

namespace platform {

struct PointF {
    double x = 0;
    double y = 0;
};

// What an area is filled with: a colour, a shade from top to bottom, or a picture of the whole space.
struct Ink {
    ui::Color top{};
    ui::Color bottom{};
    double opacity = 1;
    const SDL_Surface* texture = nullptr;  // of the viewport's size

    static Ink Flat(ui::Color color, double opacity = 1) { return {color, color, opacity, nullptr}; }
    static Ink Shade(ui::Color top, ui::Color bottom) { return {top, bottom, 1, nullptr}; }
    static Ink Texture(const SDL_Surface* picture, ui::Color instead)
    {
        return {instead, instead, 1, picture};
    }
};

// How much of each pixel is covered by letters: 0 to 255, row by row.
struct Mask {
    int width = 0;
    int height = 0;
    int baseline = 0;  // of the letters, from the top
    std::vector<std::uint8_t> cover;
};

class Canvas {
public:
    // The surface must be of 32 bits with red, green and blue in the low 24 (SDL_PIXELFORMAT_RGB888).
    Canvas(SDL_Surface& surface, const Viewport& viewport);

    static bool Suits(const SDL_Surface& surface);

    const Viewport& View() const { return view_; }
    const SDL_Rect& Clip() const { return clip_; }

    // Narrows the clip for as long as the returned object lives.
    class ClipScope {
    public:
        ClipScope(Canvas& canvas, const SDL_Rect& narrower);
        ~ClipScope() { canvas_.clip_ = before_; }
        ClipScope(const ClipScope&) = delete;
        ClipScope& operator=(const ClipScope&) = delete;

    private:
        Canvas& canvas_;
        SDL_Rect before_;
    };
    [[nodiscard]] ClipScope Clipped(const SDL_Rect& pixels) { return ClipScope(*this, pixels); }
    [[nodiscard]] ClipScope Clipped(const ui::Rect& rect) { return ClipScope(*this, view_.Cover(rect)); }
    bool Touches(const ui::Rect& rect) const;

    void Fill(const BoxF& box, const Ink& ink);
    void Fill(const BoxF& box, ui::Color color, double opacity = 1) { Fill(box, Ink::Flat(color, opacity)); }
    void Rounded(const BoxF& box, double radius, const Ink& ink);
    // A line of the given width along the inner side of the box's edge.
    void Frame(const BoxF& box, double radius, double width, ui::Color color);
    // The same turned counter-clockwise around its middle.
    void TurnedFrame(const BoxF& box, double radius, double width, double degrees, ui::Color color);
    void Disc(PointF middle, double radius, ui::Color color);
    void Polygon(std::span<const PointF> points, ui::Color color, double opacity = 1);
    void Line(std::span<const PointF> points, double width, ui::Color color);  // round ends

    // Letters, with the mask's left edge and baseline at a pixel of the surface.
    void Letters(const Mask& mask, int x, int baseline, ui::Color color);
    // Turned around a point of the mask, in pixels of the mask, that comes to lie at `middle`.
    void TurnedLetters(const Mask& mask, PointF pivot, PointF middle, double degrees, ui::Color color);
    // A picture that has its final size already.
    void Picture(SDL_Surface& picture, int x, int y);

private:
    template <class Coverage>
    void Cover(const SDL_Rect& box, int margin, const Ink& ink, const Coverage& coverage);
    void Span(int y, int from, int to, double coverage, const Ink& ink, ui::Color color);
    std::uint32_t* Row(int y) const;
    PointF ToSurface(PointF point) const;

    SDL_Surface& surface_;
    Viewport view_;
    SDL_Rect clip_;
};

}  // namespace platform
