// In a browser the C library knows one locale only, whose decimal sign is the point.
#include "files/decimal.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace files {

namespace {

const char* SkipDigits(const char* at, const char* end)
{
    return std::find_if(at, end, [](char c) { return c < '0' || c > '9'; });
}

// Where the number ends; its begin when there is none.
const char* EndOfNumber(const char* begin, const char* end)
{
    const char* at = begin != end && *begin == '-' ? begin + 1 : begin;
    const char* const whole = at;
    at = SkipDigits(at, end);
    std::ptrdiff_t digits = at - whole;
    if (at != end && *at == '.') {
        const char* const fraction = at + 1;
        at = SkipDigits(fraction, end);
        digits += at - fraction;
    }
    if (digits == 0) {
        return begin;
    }
    if (at != end && (*at == 'e' || *at == 'E')) {
        const char* power = at + 1;
        power += power != end && (*power == '-' || *power == '+') ? 1 : 0;
        const char* const last = SkipDigits(power, end);
        at = last == power ? at : last;
    }
    return at;
}

template <class T, class Convert>
std::from_chars_result Read(const char* begin, const char* end, T& value, const Convert& convert)
{
    const char* const stop = EndOfNumber(begin, end);
    if (stop == begin) {
        return {begin, std::errc::invalid_argument};
    }
    const std::string number(begin, stop);
    const T read = convert(number.c_str(), nullptr);
    const bool somethingThere = number.find_first_of("123456789") < number.find_first_of("eE");
    if (!std::isfinite(read) || (read == 0 && somethingThere)) {
        return {stop, std::errc::result_out_of_range};
    }
    value = read;
    return {stop, std::errc{}};
}

}  // namespace

std::from_chars_result ReadDecimal(const char* begin, const char* end, double& value)
{
    return Read(begin, end, value, std::strtod);
}

std::from_chars_result ReadDecimal(const char* begin, const char* end, float& value)
{
    return Read(begin, end, value, std::strtof);
}

std::to_chars_result WriteDecimal(char* begin, char* end, float value, int digits)
{
    const int length = std::snprintf(begin, static_cast<std::size_t>(end - begin), "%.*g", digits,
                                     static_cast<double>(value));
    if (length < 0 || length >= end - begin) {
        return {end, std::errc::value_too_large};
    }
    return {begin + length, std::errc{}};
}

}  // namespace files
