#include "platform/graph_painter.h"

#include "ui/look/look.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace platform {

namespace {

// A curve in a small graph is thinner.
constexpr double kLargeGraph = 60;  // pixels high
constexpr double kThick = 2.2;
constexpr double kThin = 1.5;
constexpr double kSquareEvery = 56;  // pixels between the squares of a dashed curve

// Where the chart's moments and values lie.
class Scale {
public:
    Scale(const BoxF& box, const ui::Chart& chart) : box_(box), chart_(chart)
    {
        for (const ui::Curve& curve : chart.curves) {
            moments_ = std::max(moments_, curve.values.size());
        }
    }

    double X(std::size_t moment) const
    {
        return moments_ < 2
                   ? box_.left
                   : box_.left + box_.width * static_cast<double>(moment) / static_cast<double>(moments_ - 1);
    }
    double Y(double value) const
    {
        const double part = (value - chart_.low) / std::max(chart_.high - chart_.low, 1.0);
        return box_.Bottom() - box_.height * std::clamp(part, 0.0, 1.0);
    }
    PointF At(std::size_t moment, double value) const { return {X(moment), Y(value)}; }

private:
    const BoxF& box_;
    const ui::Chart& chart_;
    std::size_t moments_ = 0;
};

// A straight line in dashes; `at` is how far along the pattern it begins.
void PaintDashes(Canvas& canvas, PointF from, PointF to, double dash, double gap, double width,
                 ui::Color color, double at = 0)
{
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    for (double start = -std::fmod(at, dash + gap); start < length; start += dash + gap) {
        const double a = std::max(start, 0.0) / length;
        const double b = std::min(start + dash, length) / length;
        if (b > a) {
            const std::array<PointF, 2> ends{{{from.x + a * (to.x - from.x), from.y + a * (to.y - from.y)},
                                              {from.x + b * (to.x - from.x), from.y + b * (to.y - from.y)}}};
            canvas.Line(ends, width, color);
        }
    }
}

// Calls `stretch(a, b)` with the ends of each piece of the curve that has no gap.
template <class Stretch>
void ForEachStretch(const ui::Curve& curve, const Scale& scale, const Stretch& stretch)
{
    for (std::size_t i = 1; i < curve.values.size(); ++i) {
        if (curve.values[i - 1] && curve.values[i]) {
            stretch(scale.At(i - 1, *curve.values[i - 1]), scale.At(i, *curve.values[i]));
        }
    }
}

// Slanted lines between the curve and a level, on one of its sides.
void PaintHatching(Canvas& canvas, const ui::Curve& curve, const Scale& scale, double level, bool onlyAbove,
                   ui::Color color)
{
    constexpr double kStep = 5;
    ForEachStretch(curve, scale, [&](PointF a, PointF b) {
        for (double x = std::ceil(a.x / kStep) * kStep; x < b.x; x += kStep) {
            const double y = a.y + (b.y - a.y) * (x - a.x) / (b.x - a.x);
            const double top = std::min(y, level);
            const double bottom = onlyAbove ? level : std::max(y, level);
            if (bottom - top > 1) {
                const double lean = std::min(3.0, (bottom - top) / 2);
                canvas.Line(std::array<PointF, 2>{{{x, top}, {x - lean, bottom}}}, 0.9, color);
            }
        }
    });
}

void PaintCurve(Canvas& canvas, const ui::Curve& curve, const Scale& scale, double width)
{
    constexpr double kSquare = 2.6;
    double along = 0;
    double nextSquare = 0;
    ForEachStretch(curve, scale, [&](PointF a, PointF b) {
        if (!curve.dashed) {
            canvas.Line(std::array<PointF, 2>{{a, b}}, width, curve.color);
            return;
        }
        PaintDashes(canvas, a, b, 7, 3, 1.8, curve.color, along);
        if (along >= nextSquare) {
            canvas.Fill({a.x - kSquare, a.y - kSquare, 2 * kSquare, 2 * kSquare}, curve.color);
            nextSquare = along + kSquareEvery;
        }
        along += std::hypot(b.x - a.x, b.y - a.y);
    });
    if (!curve.values.empty() && curve.values.back()) {
        const PointF end = scale.At(curve.values.size() - 1, *curve.values.back());
        if (curve.dashed) {
            canvas.Fill({end.x - 3.4, end.y - 3.4, 6.8, 6.8}, curve.color);
        } else {
            canvas.Disc(end, 3.2, curve.color);
        }
    }
}

void PaintLimit(Canvas& canvas, const ui::Limit& limit, const ui::Chart& chart, const BoxF& box,
                const Scale& scale)
{
    const double y = scale.Y(limit.value);
    const PointF from{box.left, y};
    const PointF to{box.Right(), y};
    if (limit.dotted) {
        PaintDashes(canvas, from, to, 2, 3, 1.4, look::kUsedRow);
        return;
    }
    PaintDashes(canvas, from, to, 6, 3, 1.4, look::kNegative);
    for (const ui::Curve& curve : chart.curves) {
        PaintHatching(canvas, curve, scale, y, true, look::kNegative);
    }
}

}  // namespace

void PaintGraph(Brush& brush, const ui::Graph& graph)
{
    constexpr double kAbove = 10;  // the events' signs
    Canvas& canvas = brush.canvas;
    const BoxF box = graph.Place();
    const ui::Chart& chart = graph.Shown();
    const Scale scale(box, chart);
    canvas.Fill(box, look::kField, 0.75);
    canvas.Fill({box.left, box.top, 1, box.height}, look::kSheetEdge);
    if (chart.low < 0) {
        canvas.Fill({box.left, scale.Y(0), box.width, 1}, look::kInk);
    }
    for (const ui::GraphEvent& event : chart.events) {
        canvas.Fill({scale.X(event.at) - 0.5, box.top - 2, 1, box.height + 2}, look::kSheetEdge);
    }
    for (const ui::Curve& curve : chart.curves) {
        if (curve.hatched) {
            PaintHatching(canvas, curve, scale, scale.Y(0), false, look::kSheetEdge);
        }
    }
    for (const ui::Limit& limit : chart.limits) {
        PaintLimit(canvas, limit, chart, box, scale);
    }
    for (const ui::Curve& curve : chart.curves) {
        PaintCurve(canvas, curve, scale, box.height < kLargeGraph ? kThin : kThick);
    }
    canvas.Fill({box.left, box.Bottom(), box.width, 1.4}, look::kInk);
    for (const ui::GraphEvent& event : chart.events) {
        PaintMark(brush, event.mark, {scale.X(event.at), box.top - kAbove}, 1, graph.Now().fore);
    }
}

}  // namespace platform
