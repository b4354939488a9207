// The edge of the desk for who cannot see it, in the few lines that the voice says on request.
#pragma once

#include "office/strip_rules.h"

#include <string>
#include <vector>

namespace office {

// Month, treasury and balance, for how many months the treasury covers a loss, the favour, and whom to fear.
std::vector<std::string> SpokenStrip(const Strip& facts);

}  // namespace office
