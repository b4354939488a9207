// What every part of the painter paints with, and the few things they all draw: texts and signs.
#pragma once

#include "platform/canvas.h"
#include "platform/letters.h"
#include "platform/pictures.h"

#include <string_view>

namespace platform {

// What a screen is printed on: the same controls look a little different on dark sheets.
struct Ground {
    bool secret = false;    // dark sheets
    bool uprising = false;  // over the red backdrop sheets get a hard shadow
};

struct Brush {
    Canvas& canvas;
    Letters& letters;
    Pictures& pictures;
    Ground ground{};
};

// A text laid out in its box as its style says.
void PaintText(Brush& brush, const BoxF& box, std::string_view text, const ui::TextStyle& style,
               ui::Color color);
// One line with its left edge, middle or right edge at x.
void PaintLine(Brush& brush, std::string_view text, ui::Face face, int size, ui::Align align, PointF baseline,
               ui::Color color);
// A picture filling its box, or a frame with the caption in it where the file is missing or broken.
void PaintPicture(Brush& brush, const BoxF& box, std::string_view file, std::string_view caption);
// Five points, the first one up.
void PaintStar(Canvas& canvas, PointF middle, double radius, ui::Color color);
// A sign around its middle. Report signs have their own fixed colours; the others take the text's.
void PaintMark(Brush& brush, ui::Mark mark, PointF middle, double scale, ui::Color color);

}  // namespace platform
