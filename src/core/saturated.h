// Whole numbers with the width of a field of the record. A store beyond the field's limits stays at the
// limit, so nothing ever wraps: this is the one place where that is decided.
//
//     i16 opposition = 32760;
//     opposition += 100;                  // 32767
//     u8 months = 0;
//     months -= 1;                        // 0
//
// Arithmetic is done in 64 bits (a field turns into std::int64_t by itself); fractions must be rounded
// first (RoundHalfEven), a floating-point number does not compile here.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>

namespace core {

template <std::integral T> class Saturated {
public:
    static constexpr std::int64_t kMin = std::numeric_limits<T>::min();
    static constexpr std::int64_t kMax = std::numeric_limits<T>::max();

    constexpr Saturated() = default;
    constexpr Saturated(std::int64_t value)
        : value_(static_cast<T>(value < kMin   ? kMin
                                : value > kMax ? kMax
                                               : value))
    {}
    Saturated(std::floating_point auto) = delete;

    constexpr operator std::int64_t() const { return value_; }
    constexpr Saturated& operator+=(std::int64_t by) { return *this = Saturated(Sum(value_, by)); }
    constexpr Saturated& operator-=(std::int64_t by)
    {
        return *this += by == std::numeric_limits<std::int64_t>::min()
                            ? std::numeric_limits<std::int64_t>::max()
                            : -by;
    }

private:
    static constexpr std::int64_t Sum(std::int64_t a, std::int64_t b)
    {
        std::int64_t sum = 0;
        if (__builtin_add_overflow(a, b, &sum)) {
            return b > 0 ? kMax : kMin;
        }
        return sum;
    }

    T value_ = 0;
};

using i16 = Saturated<std::int16_t>;
using i32 = Saturated<std::int32_t>;
using u8 = Saturated<std::uint8_t>;

}  // namespace core
