// A graph: curves over equally distant moments, with limits across and events above.
//
//     graph.Draw({.low = 0, .high = 100, .curves = {{.values = {30, 41, 58}}}, .limits = {{66}, {56, true}}});
//     graph.SetText("From 30 to 58, at most 58.");     // for who cannot see it; it is not painted
//
// However many moments there are, they fill the width.
#pragma once

#include "ui/toolkit/control.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ui {

struct Curve {
    std::vector<std::optional<double>> values{};  // none: nobody knows, and the curve has a gap
    Color color{};
    bool dashed =
        false;  // with a square here and there, so that it is told from the other one without colour
    bool hatched = false;  // down to zero

    bool operator==(const Curve&) const = default;
};

// What lies above it is hatched.
struct Limit {
    double value = 0;
    bool dotted = false;  // the lesser one; nothing is hatched

    bool operator==(const Limit&) const = default;
};

struct GraphEvent {
    std::size_t at = 0;  // the moment's number, from 0
    Mark mark = Mark::None;

    bool operator==(const GraphEvent&) const = default;
};

struct Chart {
    double low = 0;
    double high = 100;
    std::vector<Curve> curves{};
    std::vector<Limit> limits{};
    std::vector<GraphEvent> events{};

    bool operator==(const Chart&) const = default;
};

class Graph : public Control {
public:
    Graph(Holder& holder, std::string_view name, const Rect& rect, std::string_view text,
          const TextStyle& style, const Extras& extras = {})
        : Control(holder, Kind::Graph, name, rect, text, style, extras)
    {}

    const Chart& Shown() const { return chart_; }
    void Draw(Chart chart)
    {
        if (!(chart == chart_)) {
            chart_ = std::move(chart);
            MarkDirty();
        }
    }
    void Reset() override
    {
        chart_ = {};
        Control::Reset();
    }

private:
    Chart chart_;
};

}  // namespace ui
