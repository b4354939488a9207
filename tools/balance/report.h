// The page that docs/balance.md is, and its plots.
#pragma once

#include "balance/sample.h"

#include <string>
#include <utility>
#include <vector>

namespace balance {

std::string Page(const std::vector<Sample>& samples, const std::vector<Ban>& bans, const Orders& orders);
// The table of months, points and endings alone.
std::string Ends(const std::vector<Sample>& samples);
// What the page shows, by the name of its file.
std::vector<std::pair<std::string, std::string>> Plots(const std::vector<Sample>& samples);

}  // namespace balance
