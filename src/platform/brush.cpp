#include "platform/brush.h"

#include "platform/event_marks.h"
#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <array>
#include <cmath>
#include <numbers>

namespace platform {

namespace {

void PaintMask(Brush& brush, const Mask& mask, double width, ui::Align align, PointF at, ui::Color color)
{
    const Viewport& view = brush.canvas.View();
    const double back = align == ui::Align::Left ? 0 : align == ui::Align::Center ? width / 2 : width;
    const int x = static_cast<int>(std::lround(view.place.x + at.x * view.scale - back));
    brush.canvas.Letters(mask, x, view.Y(at.y), color);
}

void PaintTriangle(Canvas& canvas, PointF top, double halfWidth, double height, ui::Color color)
{
    canvas.Polygon(
        std::array<PointF, 3>{
            {top, {top.x + halfWidth, top.y + height}, {top.x - halfWidth, top.y + height}}},
        color);
}

}  // namespace

void PaintStar(Canvas& canvas, PointF middle, double radius, ui::Color color)
{
    constexpr double kInner = 0.42;
    std::array<PointF, 10> points;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double angle = std::numbers::pi * (static_cast<double>(i) / 5 - 0.5);
        const double reach = i % 2 == 0 ? radius : radius * kInner;
        points[i] = {middle.x + reach * std::cos(angle), middle.y + reach * std::sin(angle)};
    }
    canvas.Polygon(points, color);
}

void PaintLine(Brush& brush, std::string_view text, ui::Face face, int size, ui::Align align, PointF baseline,
               ui::Color color)
{
    const Type type{face, size, brush.canvas.View().scale};
    const double width = brush.letters.Width(text, type);
    PaintMask(brush, brush.letters.Render(text, type), width, align, baseline, color);
}

void PaintText(Brush& brush, const BoxF& box, std::string_view text, const ui::TextStyle& style,
               ui::Color color)
{
    constexpr double kShadow = 2;
    const TextLayout layout = LayOut(brush.letters, text, style, box);
    const double x = style.align == ui::Align::Left     ? box.left
                     : style.align == ui::Align::Center ? box.MiddleX()
                                                        : box.Right();
    for (const TextLine& line : layout.lines) {
        if (style.shadow) {
            PaintLine(brush, line.text, style.face, layout.size, style.align,
                      {x + kShadow, line.baseline + kShadow}, look::kBlack);
        }
        PaintLine(brush, line.text, style.face, layout.size, style.align, {x, line.baseline}, color);
    }
}

void PaintPicture(Brush& brush, const BoxF& box, std::string_view file, std::string_view caption)
{
    const SDL_Rect pixels = brush.canvas.View().Snap(box);
    if (SDL_Surface* picture = brush.pictures.Get(file, pixels.w, pixels.h)) {
        brush.canvas.Picture(*picture, pixels.x, pixels.y);
        return;
    }
    brush.canvas.Fill(box, look::kSecret);
    brush.canvas.Frame(box, 0, 2, look::kBrass);
    const ui::TextStyle& style = look::kPicture;
    PaintText(brush, box.Grown(-4), caption.empty() ? file : caption, style, style.fore);
}

namespace {

// On paper the report's bright signs need an edge of ink around them.
void PaintMarkEdge(Canvas& canvas, ui::Mark mark, PointF middle, double scale)
{
    const auto [x, y] = middle;
    if (mark == ui::Mark::Triangle) {
        PaintTriangle(canvas, {x, y - 6 * scale - 1.8}, 6.5 * scale + 1.8, 12 * scale + 2.8, look::kInk);
    } else if (mark == ui::Mark::Disc) {
        canvas.Disc(middle, 6 * scale + 1, look::kInk);
    } else if (mark == ui::Mark::Diamond) {
        const double r = 7 * scale + 1.4;
        canvas.Polygon(std::array<PointF, 4>{{{x, y - r}, {x + r, y}, {x, y + r}, {x - r, y}}}, look::kInk);
    }
}

}  // namespace

void PaintMark(Brush& brush, ui::Mark mark, PointF middle, double scale, ui::Color color)
{
    Canvas& canvas = brush.canvas;
    const auto [x, y] = middle;
    if (!brush.ground.secret) {
        PaintMarkEdge(canvas, mark, middle, scale);
    }
    switch (mark) {
    case ui::Mark::None:
    case ui::Mark::Blank:
        break;
    case ui::Mark::Up:
        PaintTriangle(canvas, {x, y - 4}, 5, 8, color);
        break;
    case ui::Mark::Down:
        PaintTriangle(canvas, {x, y + 4}, 5, -8, color);
        break;
    case ui::Mark::Star:
        PaintStar(canvas, middle, 6, color);
        break;
    case ui::Mark::Dash:
        canvas.Fill({x - 5, y - 1.25, 10, 2.5}, color);
        break;
    case ui::Mark::Triangle:
        PaintTriangle(canvas, {x, y - 6 * scale}, 6.5 * scale, 12 * scale, look::kRed);
        break;
    case ui::Mark::Disc:
        canvas.Disc(middle, 6 * scale, look::kYellow);
        break;
    case ui::Mark::Diamond: {
        const double r = 7 * scale;
        canvas.Polygon(std::array<PointF, 4>{{{x, y - r}, {x + r, y}, {x, y + r}, {x - r, y}}},
                       look::kMagenta);
        break;
    }
    case ui::Mark::Question:
        canvas.Rounded({x - 6, y - 7, 12, 14}, 2, Ink::Flat(look::kQuestion));
        PaintLine(brush, "?", ui::Face::CaptionBold, 13, ui::Align::Center, {x, y + 4.5}, look::kSecret);
        break;
    default:
        PaintEventMark(canvas, mark, middle, color);
        break;
    }
}

}  // namespace platform
