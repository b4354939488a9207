// What is said about a record that is not what it should be.
#pragma once

#include "files/result.h"
#include "files/text_records.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace persist {

// "Save/Save1, line 12: expected a whole number from 0 to 255 for TaxRate[Workers], found 256"
files::FileError Unexpected(std::string_view file, const files::Item& item, std::string_view of,
                            std::string_view expected);

// None when there are as many items as there should be.
std::optional<files::FileError> WrongCount(std::string_view file, const std::vector<files::Item>& items,
                                           std::size_t expected);

}  // namespace persist
