// Rounding, percentages and the way numbers are written for the player.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace core {

// The nearest whole number, halves to the even one: 2.5 gives 2, 3.5 gives 4. What 64 bits cannot hold
// becomes their limit, and what is no number at all becomes 0.
std::int64_t RoundHalfEven(double value);

// x + x / 100 * percent, formed in double precision in this order and rounded once; percent may be negative.
std::int64_t ChangedByPercent(std::int64_t value, double percent);

// How the user's country writes numbers. Where the locale groups nothing, a comma keeps millions readable.
struct NumberFormat {
    std::string group = ",";
    std::string decimal = ".";

    static NumberFormat OfUser();

    std::string Amount(std::int64_t value) const;  // "#,##0"
    std::string Amount(double value) const;        // the same, rounded half to even first
    std::string OneDecimal(double value) const;    // "0.0", halves to even

    // A typed amount: "1,500,000", "1500000", "-2.5". Blanks around it do not matter; separators may be
    // left out, but where they stand, three digits follow each, so that a decimal sign of another country
    // is not taken for one of thousands. None when it is no number.
    std::optional<double> ParseAmount(std::string_view text) const;
};

// A field as a fraction is computed with: exact in double precision.
constexpr double Real(std::int64_t field)
{
    return static_cast<double>(field);
}

// part as a percentage of whole, 0 while there is no whole.
constexpr double PercentOf(std::int64_t part, std::int64_t whole)
{
    return whole == 0 ? 0 : Real(part) / Real(whole) * 100;
}

// Plain decimal digits, with a leading minus sign where needed.
inline std::string Digits(std::int64_t value)
{
    return std::to_string(value);
}

}  // namespace core
