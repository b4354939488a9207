// Paints a graph: ground, limits, curves, and the signs of the events above it.
#pragma once

#include "platform/brush.h"
#include "ui/toolkit/graph.h"

namespace platform {

void PaintGraph(Brush& brush, const ui::Graph& graph);

}  // namespace platform
