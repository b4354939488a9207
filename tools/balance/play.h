// A game from where it is to its end.
#pragma once

#include "balance/country.h"

#include <functional>

namespace balance {

inline constexpr int kPatience = 3;  // months that may not end in a row before a game counts as bankrupt

// Until the game ends, or the months do. `seen` hears each month's country as it begins.
void Play(Country& country, Bot& bot, int months, const std::function<void(const Country&)>& seen = {});

}  // namespace balance
