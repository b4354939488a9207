#include "persist/record_values.h"

#include "core/numbers.h"

#include <cmath>

namespace persist {

std::string Record(const core::Value& value, int digits)
{
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return core::Digits(*number);
    }
    if (const auto* fraction = std::get_if<float>(&value)) {
        return files::Number(*fraction, digits);
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return files::Text(*text);
    }
    return {};  // an empty cell
}

std::optional<core::Value> ValueOf(const files::Item& item)
{
    constexpr double kExact = 9007199254740992.0;  // up to here every whole double is that number
    if (item.quoted) {
        return item.text;
    }
    if (item.text.empty()) {
        return std::monostate{};
    }
    if (const std::optional<std::int64_t> number = files::AsInteger(item)) {
        return *number;
    }
    const std::optional<double> fraction = files::AsDouble(item);
    if (fraction && std::abs(*fraction) <= kExact && std::trunc(*fraction) == *fraction) {
        return static_cast<std::int64_t>(*fraction);
    }
    if (const std::optional<float> single = files::AsFloat(item)) {
        return *single;
    }
    return std::nullopt;
}

}  // namespace persist
