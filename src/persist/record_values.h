// A value of the game's record as one record of a file, and back.
#pragma once

#include "core/fields.h"
#include "files/text_records.h"

#include <optional>
#include <string>

namespace persist {

// An empty cell gives an empty record; a fraction has at most so many digits.
std::string Record(const core::Value& value, int digits = files::kDigits);
// A number may be written in any way, 3 also as 3.0 or 3e0. None when it is neither number nor text.
std::optional<core::Value> ValueOf(const files::Item& item);

}  // namespace persist
