// The editing of one line of text: caret, selection, word jumps, composition. It draws nothing.
//
// Positions are byte offsets into UTF-8 and always lie between whole characters as a reader sees them: a
// letter and the accents that follow it are one step. What is inserted is made valid UTF-8, and control
// characters (line ends, tabs) are left out, so a name is always one line. A text has at most so many characters
// (Unicode's, so that a heap of accents counts too); what would be too much is left out at its end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace ui {

// The longest texts that a player may type, in characters.
inline constexpr std::size_t kNameLength = 200;
inline constexpr std::size_t kAmountLength = 40;

class TextEdit {
public:
    enum class Move { Left, Right, WordLeft, WordRight, Home, End };

    explicit TextEdit(std::size_t longest = kNameLength) : longest_(longest) {}

    const std::string& Text() const { return text_; }
    std::size_t Caret() const { return caret_; }
    std::size_t SelectionStart() const { return caret_ < anchor_ ? caret_ : anchor_; }
    std::size_t SelectionEnd() const { return caret_ < anchor_ ? anchor_ : caret_; }
    bool HasSelection() const { return caret_ != anchor_; }
    std::string Selected() const;

    // Text being composed by an input method: shown at the caret, not part of the text until inserted.
    const std::string& Composition() const { return composition_; }
    void SetComposition(std::string_view text);

    void SetText(std::string_view text);  // caret behind the last character
    void Insert(std::string_view text);   // replaces the selection
    void Erase(bool forward, bool word);  // the selection, else what lies beside the caret
    void MoveCaret(Move move, bool select);
    void PlaceCaret(std::size_t offset, bool select);
    void SelectAll();
    void SelectWordAt(std::size_t offset);

    bool operator==(const TextEdit&) const = default;

    // The nearest character borders, and those of words.
    std::size_t Next(std::size_t offset) const;
    std::size_t Previous(std::size_t offset) const;

private:
    std::size_t WordEdge(std::size_t offset, bool forward) const;
    std::size_t Target(Move move) const;

    std::size_t longest_;
    std::string text_;
    std::string composition_;
    std::size_t caret_ = 0;
    std::size_t anchor_ = 0;
};

}  // namespace ui
