// Telling the dice what to show.
#pragma once

#include "core/chance.h"

#include <cstdint>
#include <initializer_list>

namespace test {

// The r that makes a draw of low .. high show that value.
constexpr double Roll(std::int64_t value, std::int64_t low, std::int64_t high)
{
    return (static_cast<double>(value - low) + 0.5) / static_cast<double>(high - low + 1);
}

// A chance that knows its next draws and counts them.
class ToldChance : public core::Chance {
public:
    explicit ToldChance(std::initializer_list<double> draws)
    {
        for (const double r : draws) {
            Tell(r);
        }
        onDraw = [this](const Drawn& draw) {
            ++drawn;
            last = draw;
        };
    }
    ToldChance(const ToldChance&) = delete;
    ToldChance& operator=(const ToldChance&) = delete;

    int drawn = 0;
    Drawn last;
};

}  // namespace test
