#include "platform/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <stdexcept>

namespace platform {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;

std::uint32_t Pack(ui::Color color)
{
    return kOpaque | (std::uint32_t{color.red} << 16U) | (std::uint32_t{color.green} << 8U) | color.blue;
}

// Mixes two packed colours, 256 parts of the upper one hiding the lower one wholly.
std::uint32_t Mix(std::uint32_t under, std::uint32_t over, std::uint32_t parts)
{
    constexpr std::uint32_t kOuter = 0x00FF00FFU;
    constexpr std::uint32_t kInner = 0x0000FF00U;
    const std::uint32_t rest = 256U - parts;
    const std::uint32_t outer = (((under & kOuter) * rest + (over & kOuter) * parts) >> 8U) & kOuter;
    const std::uint32_t inner = (((under & kInner) * rest + (over & kInner) * parts) >> 8U) & kInner;
    return kOpaque | outer | inner;
}

std::uint32_t Parts(double coverage)
{
    return static_cast<std::uint32_t>(std::lrint(std::clamp(coverage, 0.0, 1.0) * 256.0));
}

// 0..255 as it is stored in a mask to 0..256.
std::uint32_t Parts(std::uint8_t cover)
{
    return cover + (std::uint32_t{cover} >> 7U);
}

ui::Color Between(const ui::Color& a, const ui::Color& b, double t)
{
    const auto mix = [t](std::uint8_t from, std::uint8_t to) {
        return static_cast<std::uint8_t>(std::lround(from + (to - from) * t));
    };
    return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)};
}

// The distance from a rounded box around the origin; negative inside.
double BoxDistance(double x, double y, double halfWidth, double halfHeight, double radius)
{
    const double dx = std::abs(x) - halfWidth + radius;
    const double dy = std::abs(y) - halfHeight + radius;
    const double outX = std::max(dx, 0.0);
    const double outY = std::max(dy, 0.0);
    return std::sqrt(outX * outX + outY * outY) + std::min(std::max(dx, dy), 0.0) - radius;
}

// How much of a pixel lies inside an edge at this distance from its middle.
double Inside(double distance)
{
    return std::clamp(0.5 - distance, 0.0, 1.0);
}

double SquaredDistance(PointF p, PointF a, PointF b)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length == 0 ? 0 : std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0);
    const double x = p.x - a.x - along * dx;
    const double y = p.y - a.y - along * dy;
    return x * x + y * y;
}

SDL_Rect Around(std::span<const PointF> points, double margin)
{
    double left = points.front().x;
    double right = left;
    double top = points.front().y;
    double bottom = top;
    for (const PointF& point : points) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
    }
    const int x = static_cast<int>(std::floor(left - margin));
    const int y = static_cast<int>(std::floor(top - margin));
    return {x, y, static_cast<int>(std::ceil(right + margin)) - x,
            static_cast<int>(std::ceil(bottom + margin)) - y};
}

struct Turn {
    double cos;
    double sin;

    // The screen's rows grow downwards, so counter-clockwise is a negative angle.
    explicit Turn(double degrees)
        : cos(std::cos(-degrees * std::numbers::pi / 180)), sin(std::sin(-degrees * std::numbers::pi / 180))
    {}
    PointF Out(double x, double y) const { return {x * cos - y * sin, y * cos + x * sin}; }
    PointF Back(double x, double y) const { return {x * cos + y * sin, y * cos - x * sin}; }
};

// The pixels that a box touches when it is turned around the origin and moved.
SDL_Rect AroundTurned(const Turn& turn, PointF from, PointF to, PointF middle)
{
    PointF corners[] = {turn.Out(from.x, from.y), turn.Out(to.x, from.y), turn.Out(to.x, to.y),
                        turn.Out(from.x, to.y)};
    for (PointF& corner : corners) {
        corner = {corner.x + middle.x, corner.y + middle.y};
    }
    return Around(corners, 1);
}

}  // namespace

Canvas::Canvas(SDL_Surface& surface, const Viewport& viewport) : surface_(surface), view_(viewport), clip_()
{
    if (!Suits(surface)) {
        throw std::invalid_argument("the canvas needs a surface of 32 bits a pixel");
    }
    const SDL_Rect whole{0, 0, surface.w, surface.h};
    if (SDL_IntersectRect(&whole, &view_.place, &clip_) == SDL_FALSE) {
        clip_ = {};
    }
}

bool Canvas::Suits(const SDL_Surface& surface)
{
    const SDL_PixelFormat& format = *surface.format;
    return format.BytesPerPixel == 4 && format.Rmask == 0xFF0000U && format.Gmask == 0xFF00U &&
           format.Bmask == 0xFFU;
}

Canvas::ClipScope::ClipScope(Canvas& canvas, const SDL_Rect& narrower)
    : canvas_(canvas), before_(canvas.clip_)
{
    if (SDL_IntersectRect(&before_, &narrower, &canvas_.clip_) == SDL_FALSE) {
        canvas_.clip_ = {};
    }
}

bool Canvas::Touches(const ui::Rect& rect) const
{
    const SDL_Rect pixels = view_.Cover(rect);
    return SDL_HasIntersection(&pixels, &clip_) == SDL_TRUE;
}

std::uint32_t* Canvas::Row(int y) const
{
    auto* bytes = static_cast<std::uint8_t*>(surface_.pixels);
    return reinterpret_cast<std::uint32_t*>(bytes + static_cast<std::ptrdiff_t>(y) * surface_.pitch);
}

PointF Canvas::ToSurface(PointF point) const
{
    return {view_.place.x + point.x * view_.scale, view_.place.y + point.y * view_.scale};
}

void Canvas::Span(int y, int from, int to, double coverage, const Ink& ink, ui::Color color)
{
    const std::uint32_t parts = Parts(coverage * ink.opacity);
    if (from >= to || parts == 0) {
        return;
    }
    std::uint32_t* row = Row(y);
    if (ink.texture != nullptr) {
        const auto* bytes = static_cast<const std::uint8_t*>(ink.texture->pixels) +
                            static_cast<std::ptrdiff_t>(y - view_.place.y) * ink.texture->pitch;
        const auto* texture = reinterpret_cast<const std::uint32_t*>(bytes) + (from - view_.place.x);
        if (parts == 256) {
            std::copy(texture, texture + (to - from), row + from);
            return;
        }
        std::transform(texture, texture + (to - from), row + from, row + from,
                       [parts](std::uint32_t over, std::uint32_t under) { return Mix(under, over, parts); });
        return;
    }
    const std::uint32_t packed = Pack(color);
    if (parts == 256) {
        std::fill(row + from, row + to, packed);
        return;
    }
    for (int x = from; x < to; ++x) {
        row[x] = Mix(row[x], packed, parts);
    }
}

// Fills the box's pixels by how much of each is covered. Between the margins a row is covered evenly, so
// that only the corners are looked at pixel by pixel.
template <class Coverage>
void Canvas::Cover(const SDL_Rect& box, int margin, const Ink& ink, const Coverage& coverage)
{
    SDL_Rect area;
    if (SDL_IntersectRect(&box, &clip_, &area) == SDL_FALSE) {
        return;
    }
    const int right = area.x + area.w;
    const int evenFrom = box.x + std::min(margin, box.w / 2);
    const int evenTo = std::max(evenFrom, box.x + box.w - margin);
    const int leftEnd = std::clamp(evenFrom, area.x, right);
    const int rightStart = std::clamp(evenTo, area.x, right);
    for (int y = area.y; y < area.y + area.h; ++y) {
        const double middle = y + 0.5;
        const ui::Color color = Between(ink.top, ink.bottom, (middle - box.y) / box.h);
        for (int x = area.x; x < leftEnd; ++x) {
            Span(y, x, x + 1, coverage(x + 0.5, middle), ink, color);
        }
        if (rightStart > leftEnd) {
            Span(y, leftEnd, rightStart, coverage((evenFrom + evenTo) / 2.0, middle), ink, color);
        }
        for (int x = std::max(leftEnd, rightStart); x < right; ++x) {
            Span(y, x, x + 1, coverage(x + 0.5, middle), ink, color);
        }
    }
}

void Canvas::Fill(const BoxF& box, const Ink& ink)
{
    Cover(view_.Snap(box), 0, ink, [](double, double) { return 1.0; });
}

void Canvas::Rounded(const BoxF& box, double radius, const Ink& ink)
{
    const SDL_Rect pixels = view_.Snap(box);
    const double corner = std::min({radius * view_.scale, pixels.w / 2.0, pixels.h / 2.0});
    const double x0 = pixels.x + pixels.w / 2.0;
    const double y0 = pixels.y + pixels.h / 2.0;
    Cover(pixels, static_cast<int>(std::ceil(corner)) + 1, ink, [&](double x, double y) {
        return Inside(BoxDistance(x - x0, y - y0, pixels.w / 2.0, pixels.h / 2.0, corner));
    });
}

void Canvas::Frame(const BoxF& box, double radius, double width, ui::Color color)
{
    const SDL_Rect pixels = view_.Snap(box);
    const int line = view_.Thickness(width);
    const double corner = std::min({radius * view_.scale, pixels.w / 2.0, pixels.h / 2.0});
    const double x0 = pixels.x + pixels.w / 2.0;
    const double y0 = pixels.y + pixels.h / 2.0;
    const int margin = std::max(static_cast<int>(std::ceil(corner)), line) + 1;
    Cover(pixels, margin, Ink::Flat(color), [&](double x, double y) {
        const double distance = BoxDistance(x - x0, y - y0, pixels.w / 2.0, pixels.h / 2.0, corner);
        return Inside(distance) - Inside(distance + line);
    });
}

void Canvas::TurnedFrame(const BoxF& box, double radius, double width, double degrees, ui::Color color)
{
    const Turn turn(degrees);
    const PointF middle = ToSurface({box.MiddleX(), box.MiddleY()});
    const double halfWidth = box.width / 2 * view_.scale;
    const double halfHeight = box.height / 2 * view_.scale;
    const double line = width * view_.scale;
    const SDL_Rect bounds = AroundTurned(turn, {-halfWidth, -halfHeight}, {halfWidth, halfHeight}, middle);
    Cover(bounds, bounds.w, Ink::Flat(color), [&](double x, double y) {
        const PointF p = turn.Back(x - middle.x, y - middle.y);
        const double distance = BoxDistance(p.x, p.y, halfWidth, halfHeight, radius * view_.scale);
        return Inside(distance) - Inside(distance + line);
    });
}

void Canvas::Disc(PointF middle, double radius, ui::Color color)
{
    const PointF at = ToSurface(middle);
    const double r = radius * view_.scale;
    const SDL_Rect box = Around(std::span(&at, 1), r + 1);
    Cover(box, box.w, Ink::Flat(color),
          [&](double x, double y) { return Inside(std::hypot(x - at.x, y - at.y) - r); });
}

// Four samples a row; within a row the covered part of each pixel is exact.
void Canvas::Polygon(std::span<const PointF> points, ui::Color color, double opacity)
{
    constexpr int kSamples = 4;
    std::vector<PointF> corners(points.size());
    std::transform(points.begin(), points.end(), corners.begin(), [this](PointF p) { return ToSurface(p); });
    const SDL_Rect box = Around(corners, 1);
    SDL_Rect area;
    if (SDL_IntersectRect(&box, &clip_, &area) == SDL_FALSE) {
        return;
    }
    std::vector<double> cover(static_cast<std::size_t>(area.w));
    std::vector<double> crossings;
    const Ink ink = Ink::Flat(color, opacity);
    for (int y = area.y; y < area.y + area.h; ++y) {
        std::fill(cover.begin(), cover.end(), 0.0);
        for (int sample = 0; sample < kSamples; ++sample) {
            const double line = y + (sample + 0.5) / kSamples;
            crossings.clear();
            for (std::size_t i = 0; i < corners.size(); ++i) {
                const PointF& a = corners[i];
                const PointF& b = corners[(i + 1) % corners.size()];
                if ((a.y <= line) != (b.y <= line)) {
                    crossings.push_back(a.x + (line - a.y) / (b.y - a.y) * (b.x - a.x));
                }
            }
            std::sort(crossings.begin(), crossings.end());
            for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
                const int from = std::max(area.x, static_cast<int>(std::floor(crossings[i])));
                const int to = std::min(area.x + area.w, static_cast<int>(std::ceil(crossings[i + 1])));
                for (int x = from; x < to; ++x) {
                    const double part =
                        std::min(x + 1.0, crossings[i + 1]) - std::max<double>(x, crossings[i]);
                    cover[static_cast<std::size_t>(x - area.x)] += std::max(part, 0.0) / kSamples;
                }
            }
        }
        for (auto run = cover.begin(); run != cover.end();) {
            const double part = *run;
            const auto end = std::find_if(run, cover.end(), [part](double each) { return each != part; });
            Span(y, area.x + static_cast<int>(run - cover.begin()),
                 area.x + static_cast<int>(end - cover.begin()), part, ink, color);
            run = end;
        }
    }
}

void Canvas::Line(std::span<const PointF> points, double width, ui::Color color)
{
    std::vector<PointF> corners(points.size());
    std::transform(points.begin(), points.end(), corners.begin(), [this](PointF p) { return ToSurface(p); });
    const double half = std::max(width * view_.scale, 1.0) / 2;
    const SDL_Rect box = Around(corners, half + 1);
    Cover(box, box.w, Ink::Flat(color), [&](double x, double y) {
        double nearest = (half + 2) * (half + 2);
        for (std::size_t i = 0; i + 1 < corners.size(); ++i) {
            nearest = std::min(nearest, SquaredDistance({x, y}, corners[i], corners[i + 1]));
        }
        return Inside(std::sqrt(nearest) - half);
    });
}

void Canvas::Letters(const Mask& mask, int x, int baseline, ui::Color color)
{
    const SDL_Rect box{x, baseline - mask.baseline, mask.width, mask.height};
    SDL_Rect area;
    if (SDL_IntersectRect(&box, &clip_, &area) == SDL_FALSE) {
        return;
    }
    const std::uint32_t packed = Pack(color);
    for (int py = area.y; py < area.y + area.h; ++py) {
        std::uint32_t* row = Row(py);
        const std::uint8_t* cover = mask.cover.data() + static_cast<std::ptrdiff_t>(py - box.y) * mask.width;
        for (int px = area.x; px < area.x + area.w; ++px) {
            if (const std::uint8_t part = cover[px - box.x]; part != 0) {
                row[px] = Mix(row[px], packed, Parts(part));
            }
        }
    }
}

void Canvas::TurnedLetters(const Mask& mask, PointF pivot, PointF middle, double degrees, ui::Color color)
{
    const Turn turn(degrees);
    const PointF at = ToSurface(middle);
    const SDL_Rect box =
        AroundTurned(turn, {-pivot.x, -pivot.y}, {mask.width - pivot.x, mask.height - pivot.y}, at);
    const auto sample = [&mask](int x, int y) -> double {
        const bool in = x >= 0 && y >= 0 && x < mask.width && y < mask.height;
        return in ? mask.cover[static_cast<std::size_t>(y) * static_cast<std::size_t>(mask.width) +
                               static_cast<std::size_t>(x)]
                  : 0;
    };
    Cover(box, box.w, Ink::Flat(color), [&](double x, double y) {
        const PointF p = turn.Back(x - at.x, y - at.y);
        const double column = p.x + pivot.x - 0.5;
        const double line = p.y + pivot.y - 0.5;
        const int cx = static_cast<int>(std::floor(column));
        const int cy = static_cast<int>(std::floor(line));
        const double fx = column - cx;
        const double fy = line - cy;
        const double upper = sample(cx, cy) * (1 - fx) + sample(cx + 1, cy) * fx;
        const double lower = sample(cx, cy + 1) * (1 - fx) + sample(cx + 1, cy + 1) * fx;
        return (upper * (1 - fy) + lower * fy) / 255;
    });
}

void Canvas::Picture(SDL_Surface& picture, int x, int y)
{
    SDL_Rect place{x, y, picture.w, picture.h};
    SDL_SetClipRect(&surface_, &clip_);
    SDL_BlitSurface(&picture, nullptr, &surface_, &place);
    SDL_SetClipRect(&surface_, nullptr);
}

}  // namespace platform
