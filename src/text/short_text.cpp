#include "text/short_text.h"

#include "text/characters.h"

namespace text {

namespace {

constexpr std::size_t kMost = 200;  // characters that are looked at, however few columns accents take

std::size_t ColumnsOf(char first)
{
    constexpr unsigned char kBeyondEurope = 0xE1;  // how characters from U+1000 on begin in UTF-8
    const bool wide =
        (first >= 'A' && first <= 'Z') || std::string_view("mw@%").find(first) != std::string_view::npos;
    return wide || static_cast<unsigned char>(first) >= kBeyondEurope ? 2 : 1;
}

}  // namespace

std::string Shortened(std::string_view text, std::size_t columns)
{
    std::string line = Beginning(OneLine(text), kMost);
    std::size_t used = 0;
    std::size_t kept = 0;  // how much stands before the dots
    for (std::size_t at = 0; at < line.size(); at = Border(line, at)) {
        used += ColumnsOf(line[at]);
        if (used > columns) {
            return line.substr(0, kept) + "…";
        }
        kept = used < columns ? Border(line, at) : kept;
    }
    return line;
}

}  // namespace text
