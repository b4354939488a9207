#include "files/decimal.h"

namespace files {

std::from_chars_result ReadDecimal(const char* begin, const char* end, double& value)
{
    return std::from_chars(begin, end, value);
}

std::from_chars_result ReadDecimal(const char* begin, const char* end, float& value)
{
    return std::from_chars(begin, end, value);
}

std::to_chars_result WriteDecimal(char* begin, char* end, float value, int digits)
{
    return std::to_chars(begin, end, value, std::chars_format::general, digits);
}

}  // namespace files
