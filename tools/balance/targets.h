// What the balance should be, and what it is.
#pragma once

#include "balance/sample.h"

#include <array>
#include <string>
#include <vector>

namespace balance {

// By level: Easy, Normal, Hard.
struct Target {
    std::string what;
    std::array<double, 3> least;
    std::array<double, 3> most;
    std::array<double, 3> value{};
    bool percent = false;

    bool Met(std::size_t level) const { return value[level] >= least[level] && value[level] <= most[level]; }
};

std::vector<Target> Targets(const std::vector<Sample>& samples, const std::vector<Ban>& bans);

}  // namespace balance
