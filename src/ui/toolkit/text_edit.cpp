#include "ui/toolkit/text_edit.h"

#include <utf8.h>

#include <algorithm>
#include <iterator>

namespace ui {

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

bool IsBlank(char32_t c)
{
    return c == U' ' || c == U'\u00A0' || c == U'\u3000';
}

// One valid line: broken UTF-8 becomes the replacement character, control characters vanish.
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

// The border behind the character that begins at an offset.
std::size_t Border(const std::string& text, std::size_t offset)
{
    if (offset >= text.size()) {
        return text.size();
    }
    auto it = text.begin() + static_cast<std::ptrdiff_t>(offset);
    char32_t last = utf8::unchecked::next(it);
    if (IsFlagLetter(last) && it != text.end() &&
        IsFlagLetter(At(text, static_cast<std::size_t>(it - text.begin())))) {
        last = utf8::unchecked::next(it);
    }
    while (it != text.end()) {
        const char32_t c = At(text, static_cast<std::size_t>(it - text.begin()));
        const bool joined = last == 0x200D;  // what follows a joiner belongs to the same sign
        if (!Joins(c) && !joined) {
            break;
        }
        last = utf8::unchecked::next(it);
    }
    return static_cast<std::size_t>(it - text.begin());
}

std::size_t Length(std::string_view text)
{
    return static_cast<std::size_t>(utf8::unchecked::distance(text.begin(), text.end()));
}

// As many of a line's first characters as there is room for.
std::string Shortened(const std::string& line, std::size_t room)
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

}  // namespace

std::string TextEdit::Selected() const
{
    return text_.substr(SelectionStart(), SelectionEnd() - SelectionStart());
}

void TextEdit::SetComposition(std::string_view text)
{
    composition_ = OneLine(text);
}

void TextEdit::SetText(std::string_view text)
{
    text_ = Shortened(OneLine(text), longest_);
    composition_.clear();
    caret_ = anchor_ = text_.size();
}

void TextEdit::Insert(std::string_view text)
{
    const std::size_t start = SelectionStart();
    text_.erase(start, SelectionEnd() - start);
    const std::string line = Shortened(OneLine(text), longest_ - Length(text_));
    text_.insert(start, line);
    composition_.clear();
    PlaceCaret(start + line.size(), false);  // what was inserted may have joined what follows
}

void TextEdit::Erase(bool forward, bool word)
{
    if (!HasSelection()) {
        if (word) {
            anchor_ = WordEdge(caret_, forward);
        } else {
            anchor_ = forward ? Next(caret_) : Previous(caret_);
        }
    }
    Insert("");
}

std::size_t TextEdit::Next(std::size_t offset) const
{
    return Border(text_, offset);
}

std::size_t TextEdit::Previous(std::size_t offset) const
{
    std::size_t at = 0;
    while (Next(at) < offset) {
        at = Next(at);
    }
    return offset == 0 ? 0 : at;
}

std::size_t TextEdit::WordEdge(std::size_t offset, bool forward) const
{
    std::size_t at = offset;
    if (forward) {
        while (at < text_.size() && !IsBlank(At(text_, at))) {
            at = Next(at);
        }
        while (at < text_.size() && IsBlank(At(text_, at))) {
            at = Next(at);
        }
        return at;
    }
    while (at > 0 && IsBlank(At(text_, Previous(at)))) {
        at = Previous(at);
    }
    while (at > 0 && !IsBlank(At(text_, Previous(at)))) {
        at = Previous(at);
    }
    return at;
}

std::size_t TextEdit::Target(Move move) const
{
    switch (move) {
    case Move::Left:
        return Previous(caret_);
    case Move::Right:
        return Next(caret_);
    case Move::WordLeft:
        return WordEdge(caret_, false);
    case Move::WordRight:
        return WordEdge(caret_, true);
    case Move::Home:
        return 0;
    case Move::End:
        return text_.size();
    }
    return caret_;
}

void TextEdit::MoveCaret(Move move, bool select)
{
    if (!select && HasSelection() && (move == Move::Left || move == Move::Right)) {
        caret_ = anchor_ = move == Move::Left ? SelectionStart() : SelectionEnd();
        return;
    }
    caret_ = Target(move);
    if (!select) {
        anchor_ = caret_;
    }
}

void TextEdit::PlaceCaret(std::size_t offset, bool select)
{
    std::size_t at = 0;
    while (at < offset && at < text_.size()) {
        at = Next(at);
    }
    caret_ = at;
    if (!select) {
        anchor_ = caret_;
    }
}

void TextEdit::SelectAll()
{
    anchor_ = 0;
    caret_ = text_.size();
}

void TextEdit::SelectWordAt(std::size_t offset)
{
    PlaceCaret(offset, false);
    std::size_t end = caret_;
    while (end < text_.size() && !IsBlank(At(text_, end))) {
        end = Next(end);
    }
    anchor_ = caret_;
    while (anchor_ > 0 && !IsBlank(At(text_, Previous(anchor_)))) {
        anchor_ = Previous(anchor_);
    }
    caret_ = end;
}

}  // namespace ui
