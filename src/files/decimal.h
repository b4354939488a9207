// Fractions as text, with a point whatever the locale says, as std::from_chars and std::to_chars do it.
//
// A file of its own because the browser's standard library lacks both for fractions: decimal_web.cpp stands in
// for decimal.cpp there.
#pragma once

#include <charconv>

namespace files {

// No blanks, no plus sign, no hexadecimal; too large or too small is std::errc::result_out_of_range.
std::from_chars_result ReadDecimal(const char* begin, const char* end, double& value);
std::from_chars_result ReadDecimal(const char* begin, const char* end, float& value);
// So many significant digits, with an exponent where that is shorter; the value must be finite.
std::to_chars_result WriteDecimal(char* begin, char* end, float value, int digits);

}  // namespace files
