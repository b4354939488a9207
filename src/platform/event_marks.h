// The signs of a chronicle, each told by its shape: a flame, a sight, crossed sabres, a bolt.
#pragma once

#include "platform/canvas.h"
#include "ui/toolkit/style.h"

namespace platform {

// Some fourteen pixels high. A mark of another kind paints nothing.
void PaintEventMark(Canvas& canvas, ui::Mark mark, PointF middle, ui::Color color);

}  // namespace platform
