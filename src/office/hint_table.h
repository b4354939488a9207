// What is said of a control to who rests on it: what it does, or what its figure means.
//
//     HintFor({frmTaxes.Command1, state, format})   // "Brings 22,630$ more a month; Workers' opposition +10, strength -1."
//
// A hint explains what can be read on the screens and in the handbook, with the figures of the day. It tells nothing
// that the president could not know.
#pragma once

#include "office/hint_question.h"

#include <string>

namespace office {

// One line of at most kLongestHint letters; empty where there is nothing to say.
std::string HintFor(const Question& question);
inline constexpr std::size_t kLongestHint = 116;

}  // namespace office
