// What happened, in the secretary's words: one line of at most 62 letters a note.
//
//     Told(notes, 2, format)     // "The Workers rose. The street is being swept."; none where others tell it better
//     QuietLine(27)              // "No news. El Faro printed it on three pages."
#pragma once

#include "core/journal.h"
#include "core/numbers.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace office {

// A question is told with its answer, which is one of the notes behind it.
std::optional<std::string> Told(const std::vector<core::Note>& notes, std::size_t at,
                                const core::NumberFormat& format);
// The president's own deed; none where it leaves a note of its own.
std::optional<std::string> ToldAction(std::int64_t action);
std::string QuietLine(std::int64_t month);

}  // namespace office
