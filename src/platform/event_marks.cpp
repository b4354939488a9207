#include "platform/event_marks.h"

#include "ui/look/look.h"

#include <array>
#include <vector>

namespace platform {

namespace {

std::vector<PointF> Moved(std::initializer_list<PointF> points, PointF by)
{
    std::vector<PointF> moved;
    for (const PointF& point : points) {
        moved.push_back({point.x + by.x, point.y + by.y});
    }
    return moved;
}

void PaintFlame(Canvas& canvas, PointF at)
{
    canvas.Polygon(
        Moved({{-1, -7}, {3, -3}, {4, -5}, {6, 1}, {4, 5}, {1, 7}, {-3, 6}, {-6, 3}, {-5, -1}, {-3, -2}}, at),
        look::kNegative);
    canvas.Polygon(Moved({{0, 0}, {2, 3}, {0, 6}, {-2, 3}}, at), look::kPaper);
}

void PaintSight(Canvas& canvas, PointF at, ui::Color color)
{
    canvas.Frame({at.x - 5, at.y - 5, 10, 10}, 5, 1.6, color);
    for (const double side : {-1.0, 1.0}) {
        canvas.Line(Moved({{side * 3, 0}, {side * 7, 0}}, at), 1.6, color);
        canvas.Line(Moved({{0, side * 3}, {0, side * 7}}, at), 1.6, color);
    }
}

void PaintSabres(Canvas& canvas, PointF at, ui::Color color)
{
    for (const double side : {-1.0, 1.0}) {
        canvas.Line(Moved({{side * -6, -6}, {side * 6, 6}}, at), 2, color);
        canvas.Line(Moved({{side * 2, 6}, {side * 6, 2}}, at), 2, color);
    }
}

}  // namespace

void PaintEventMark(Canvas& canvas, ui::Mark mark, PointF middle, ui::Color color)
{
    switch (mark) {
    case ui::Mark::Flame:
        PaintFlame(canvas, middle);
        break;
    case ui::Mark::Sight:
        PaintSight(canvas, middle, color);
        break;
    case ui::Mark::Sabres:
        PaintSabres(canvas, middle, color);
        break;
    case ui::Mark::Bolt:
        canvas.Polygon(Moved({{2, -7}, {-5, 1}, {-1, 1}, {-3, 7}, {5, -2}, {1, -2}, {4, -7}}, middle), color);
        break;
    default:
        break;
    }
}

}  // namespace platform
