// Printed text as a person says it.
//
//     Said("Balance: -15,630,952$")     // "Balance: minus 15.6 million dollars"
//     Said("WE  ARE  LOST !")           // "We Are Lost!"
//     Said("150.000.000$", Sums::Exact) // "150,000,000 dollars"
//
// Amounts are known by their groups of three digits, whatever sign the player's locale puts between them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace reading {

// A million and more is rounded to three digits where a line is said, and exact where one figure is asked for.
enum class Sums { Rounded, Exact };

std::string Said(std::string_view printed, Sums sums = Sums::Rounded);

// An amount as it would be printed, for those who want it said: "-15,630,952".
std::string WithGroups(std::int64_t amount);

// A change: "plus 5", "minus 3", "no change".
std::string SaidChange(std::string_view printed);

// The chief's two figures: "General Briscolle 7/3" is of ability 7 and ambition 3.
std::string SaidChief(std::string_view printed);

// What a voice is given at a time, in bytes; a longer text is cut at a sentence's end, else a comma, else a blank.
inline constexpr std::size_t kLongestLine = 200;
std::vector<std::string> Lines(std::string_view said);

// A sentence: ends with a stop. Nothing stays nothing.
std::string Sentence(std::string text);
std::string Lowered(std::string_view text);
std::string Capital(std::string text);

// "{}" in a pattern replaced by the text.
std::string Filled(std::string_view pattern, std::string_view mark, std::string_view text);

}  // namespace reading
