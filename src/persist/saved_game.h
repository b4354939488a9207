// A saved game: 250 records, one value a line, in an order that never changes.
//
//     const std::string file = persist::WriteSavedGame(state);
//     files::Result<core::GameState> loaded = persist::ReadSavedGame(items, "Save/Save1", state);
//
// Writing and reading walk one list of names into the table of the record's fields, so they cannot disagree.
#pragma once

#include "core/fields.h"
#include "core/game_state.h"
#include "files/text_records.h"

#include <string>
#include <string_view>
#include <vector>

namespace persist {

inline constexpr std::size_t kSavedRecords = 250;

// The element of the record behind each line.
const std::vector<core::Element>& SavedElements();

std::string WriteSavedGame(const core::GameState& state);

// The game that the items hold. What is not saved it takes from `state`. Every record is read and checked
// before anything is returned.
files::Result<core::GameState> ReadSavedGame(const std::vector<files::Item>& items, std::string_view file,
                                             const core::GameState& state);

}  // namespace persist
