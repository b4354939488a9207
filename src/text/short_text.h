// A text for a place that cannot grow with it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// The text as one line when it takes at most so many columns, else its beginning and three dots. A column is
// an ordinary letter with the accents that follow it; wide ones (capitals, m, w, everything beyond the
// alphabets of Europe) take two.
std::string Shortened(std::string_view text, std::size_t columns);

}  // namespace text
