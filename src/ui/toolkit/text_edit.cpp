#include "ui/toolkit/text_edit.h"

#include "text/characters.h"

namespace ui {

using text::IsBlankAt;

std::string TextEdit::Selected() const
{
    return text_.substr(SelectionStart(), SelectionEnd() - SelectionStart());
}

void TextEdit::SetComposition(std::string_view text)
{
    composition_ = text::OneLine(text);
}

void TextEdit::SetText(std::string_view text)
{
    text_ = text::Beginning(text::OneLine(text), longest_);
    composition_.clear();
    caret_ = anchor_ = text_.size();
}

void TextEdit::Insert(std::string_view text)
{
    const std::size_t start = SelectionStart();
    text_.erase(start, SelectionEnd() - start);
    const std::string line = text::Beginning(text::OneLine(text), longest_ - text::Length(text_));
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
    return text::Border(text_, offset);
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
        while (at < text_.size() && !IsBlankAt(text_, at)) {
            at = Next(at);
        }
        while (at < text_.size() && IsBlankAt(text_, at)) {
            at = Next(at);
        }
        return at;
    }
    while (at > 0 && IsBlankAt(text_, Previous(at))) {
        at = Previous(at);
    }
    while (at > 0 && !IsBlankAt(text_, Previous(at))) {
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
    while (end < text_.size() && !IsBlankAt(text_, end)) {
        end = Next(end);
    }
    anchor_ = caret_;
    while (anchor_ > 0 && !IsBlankAt(text_, Previous(anchor_))) {
        anchor_ = Previous(anchor_);
    }
    caret_ = end;
}

}  // namespace ui
