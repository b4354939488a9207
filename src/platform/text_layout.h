// How a text lies in its control: its size, its lines and where each begins.
//
//     const TextLayout layout = LayOut(letters, "Mr.President, ...", look::kBanner, control.Place());
//     if (!layout.fits) { ... }       // too much text even for the style's smallest size
//
// Texts are measured in the picture space, so a screen breaks its lines alike in every window. The style's
// sizes are tried in order; if none holds the text, the smallest is used and the text ends in three dots.
#pragma once

#include "platform/letters.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct TextLine {
    std::string text;
    double left = 0;  // of the first letter, in the picture space
    double width = 0;
    double baseline = 0;
};

struct TextLayout {
    int size = 0;
    bool fits = false;  // whole
    std::vector<TextLine> lines;

    BoxF Bounds() const;  // of the letters, for opaque grounds
};

TextLayout LayOut(Letters& letters, std::string_view text, const ui::TextStyle& style, const BoxF& box);

// Breaks at blanks so that no line is wider than the measure; a word that is wider breaks inside. Line
// ends in the text are kept. With `balanced` the lines are of about equal length.
std::vector<std::string> Wrap(Letters& letters, std::string_view text, const Type& type, double measure,
                              bool balanced = false);

}  // namespace platform
