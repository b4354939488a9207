#include "core/numbers.h"

#include "files/decimal.h"

#include <langinfo.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <limits>
#include <string_view>

namespace core {

namespace {

bool IsShownAsIs(std::string_view separator)
{
    const bool ascii =
        std::all_of(separator.begin(), separator.end(), [](char c) { return (c & 0x80) == 0; });
    return ascii || std::string_view(nl_langinfo(CODESET)) == "UTF-8";
}

constexpr std::size_t kGroupDigits = 3;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view Trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool TakePrefix(std::string_view& text, std::string_view prefix)
{
    if (prefix.empty() || !text.starts_with(prefix)) {
        return false;
    }
    text.remove_prefix(prefix.size());
    return true;
}

std::string_view TakeDigits(std::string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const std::string_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

// The thousands are separated by a blank that no keyboard has: the common one does as well.
bool TakeGroupSign(std::string_view& text, std::string_view group)
{
    constexpr std::string_view kBlanks[] = {"\u00A0", "\u202F"};
    const bool blank = std::find(std::begin(kBlanks), std::end(kBlanks), group) != std::end(kBlanks);
    return TakePrefix(text, group) || (blank && TakePrefix(text, " "));
}

// The digits of "1,500,000" or "1500000"; none when a separator stands elsewhere.
std::optional<std::string> TakeWhole(std::string_view& text, std::string_view group)
{
    std::string whole(TakeDigits(text));
    const bool mayGroup = !whole.empty() && whole.size() <= kGroupDigits;
    while (TakeGroupSign(text, group)) {
        const std::string_view digits = TakeDigits(text);
        if (!mayGroup || digits.size() != kGroupDigits) {
            return std::nullopt;
        }
        whole += digits;
    }
    return whole;
}

}  // namespace

std::int64_t RoundHalfEven(double value)
{
    constexpr double kLimit = 9223372036854775808.0;  // 2^63
    if (std::abs(value) < kLimit) {
        return std::llrint(value);  // rounds as every program does that has not asked for anything else
    }
    if (std::isnan(value)) {
        return 0;
    }
    return value > 0 ? std::numeric_limits<std::int64_t>::max() : std::numeric_limits<std::int64_t>::min();
}

std::int64_t ChangedByPercent(std::int64_t value, double percent)
{
    const auto x = static_cast<double>(value);
    return RoundHalfEven(x + x / 100 * percent);
}

// Everything the game shows is UTF-8; a country that writes its blanks in other bytes gets the defaults.
NumberFormat NumberFormat::OfUser()
{
    const std::lconv* locale = std::localeconv();
    NumberFormat format;
    if (!IsShownAsIs(locale->thousands_sep) || !IsShownAsIs(locale->decimal_point)) {
        return format;
    }
    if (*locale->thousands_sep != '\0') {
        format.group = locale->thousands_sep;
    } else if (std::string(locale->decimal_point) == ",") {
        format.group = ".";
    }
    if (*locale->decimal_point != '\0') {
        format.decimal = locale->decimal_point;
    }
    return format;
}

std::string NumberFormat::Amount(std::int64_t value) const
{
    const std::string digits = std::to_string(value);
    const std::size_t first = value < 0 ? 1 : 0;
    std::string text = digits.substr(0, first);
    for (std::size_t i = first; i < digits.size(); ++i) {
        if (i > first && (digits.size() - i) % 3 == 0) {
            text += group;
        }
        text += digits[i];
    }
    return text;
}

std::string NumberFormat::Amount(double value) const
{
    return Amount(RoundHalfEven(value));
}

std::string NumberFormat::OneDecimal(double value) const
{
    const std::int64_t tenths = RoundHalfEven(value * 10);
    const std::int64_t whole = tenths / 10;
    const std::int64_t rest = tenths % 10;
    const std::string sign = tenths < 0 ? "-" : "";
    return sign + std::to_string(whole < 0 ? -whole : whole) + decimal +
           std::to_string(rest < 0 ? -rest : rest);
}

std::optional<double> NumberFormat::ParseAmount(std::string_view text) const
{
    text = Trimmed(text);
    const bool negative = TakePrefix(text, "-");
    if (!negative) {
        TakePrefix(text, "+");
    }
    const std::optional<std::string> whole = TakeWhole(text, group);
    const std::string fraction(TakePrefix(text, decimal) ? TakeDigits(text) : std::string_view());
    if (!whole || !text.empty() || (whole->empty() && fraction.empty())) {
        return std::nullopt;
    }
    const std::string plain = "0" + *whole + "." + fraction + "0";
    double value = 0;
    const auto result = files::ReadDecimal(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = std::numeric_limits<double>::infinity();
    }
    return negative ? -value : value;
}

}  // namespace core
