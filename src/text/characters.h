// Characters as a reader sees them, in UTF-8: a letter and the accents that follow it are one, and so are a flag's
// two letters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

// One valid line: broken UTF-8 becomes the replacement character, control characters (line ends, tabs) vanish.
std::string OneLine(std::string_view text);

// The byte behind the character that begins at an offset of a line; its length at the end and beyond.
std::size_t Border(const std::string& line, std::size_t offset);
bool IsBlankAt(const std::string& line, std::size_t offset);  // a space, of whatever width

// In Unicode's characters, so that a heap of accents counts too.
std::size_t Length(std::string_view line);
// As many of a line's first characters as there is room for.
std::string Beginning(const std::string& line, std::size_t room);

}  // namespace text
