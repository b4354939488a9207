#include "text/characters.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

namespace text {

namespace {

// Whether a code point is drawn onto the one before it, so that the caret never stands between the two.
bool Joins(char32_t c)
{
    struct Range {
        char32_t first, last;
    };
    constexpr Range kRanges[] = {
        {0x0300, 0x036F},  // combining accents
        {0x0483, 0x0489},   {0x0591, 0x05BD},   {0x064B, 0x065F}, {0x0E34, 0x0E3A},
        {0x0E47, 0x0E4E},   {0x1AB0, 0x1AFF},   {0x1DC0, 0x1DFF}, {0x200D, 0x200D},  // zero width joiner
        {0x20D0, 0x20FF},   {0xFE00, 0xFE0F},                                        // variation selectors
        {0xFE20, 0xFE2F},   {0x1F3FB, 0x1F3FF},                                      // skin tones
        {0xE0020, 0xE007F},                                                          // tags of regional flags
    };
    return std::any_of(std::begin(kRanges), std::end(kRanges),
                       [c](const Range& r) { return c >= r.first && c <= r.last; });
}

// Two of these letters make one flag.
bool IsFlagLetter(char32_t c)
{
    return c >= 0x1F1E6 && c <= 0x1F1FF;
}

char32_t At(const std::string& text, std::size_t offset)
{
    auto it = text.begin() + static_cast<std::ptrdiff_t>(offset);
    return utf8::unchecked::next(it);
}

}  // namespace

std::string OneLine(std::string_view text)
{
    const std::string valid = utf8::replace_invalid(text);
    std::string line;
    for (auto it = valid.begin(); it != valid.end();) {
        const char32_t c = utf8::unchecked::next(it);
        if (c >= 0x20 && c != 0x7F && (c < 0x80 || c > 0x9F) && c != 0x2028 && c != 0x2029) {
            utf8::append(c, std::back_inserter(line));
        }
    }
    return line;
}

std::size_t Border(const std::string& line, std::size_t offset)
{
    if (offset >= line.size()) {
        return line.size();
    }
    auto it = line.begin() + static_cast<std::ptrdiff_t>(offset);
    char32_t last = utf8::unchecked::next(it);
    if (IsFlagLetter(last) && it != line.end() &&
        IsFlagLetter(At(line, static_cast<std::size_t>(it - line.begin())))) {
        last = utf8::unchecked::next(it);
    }
    while (it != line.end()) {
        const char32_t c = At(line, static_cast<std::size_t>(it - line.begin()));
        const bool joined = last == 0x200D;  // what follows a joiner belongs to the same sign
        if (!Joins(c) && !joined) {
            break;
        }
        last = utf8::unchecked::next(it);
    }
    return static_cast<std::size_t>(it - line.begin());
}

bool IsBlankAt(const std::string& line, std::size_t offset)
{
    const char32_t c = At(line, offset);
    return c == U' ' || c == U'\u00A0' || c == U'\u3000';
}

std::size_t Length(std::string_view line)
{
    return static_cast<std::size_t>(utf8::unchecked::distance(line.begin(), line.end()));
}

std::string Beginning(const std::string& line, std::size_t room)
{
    std::size_t end = 0;
    std::size_t used = 0;
    while (end < line.size()) {
        const std::size_t next = Border(line, end);
        used += Length(std::string_view(line).substr(end, next - end));
        if (used > room) {
            break;
        }
        end = next;
    }
    return line.substr(0, end);
}

}  // namespace text
