#include "ui/toolkit/text_edit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using ui::TextEdit;
using Move = TextEdit::Move;

constexpr const char* kFamily = "\U0001F469\u200D\U0001F467";  // a woman and a girl, joined: one sign
constexpr const char* kFlag = "\U0001F1F5\U0001F1F9";          // two letters: one flag
constexpr const char* kThumb = "\U0001F44D\U0001F3FD";         // with a skin tone
constexpr const char* kAccented = "e\u0301";

// The borders between whole characters, walking forward.
std::vector<std::size_t> Borders(const TextEdit& edit)
{
    std::vector<std::size_t> borders{0};
    while (borders.back() < edit.Text().size()) {
        borders.push_back(edit.Next(borders.back()));
    }
    return borders;
}

TEST(TextEdit, StepsOverWholeCharacters)
{
    const struct {
        const char* why;
        std::string text;
        std::size_t characters;
    } cases[] = {
        {"nothing", "", 0},
        {"plain letters", "Ada", 3},
        {"two bytes each", "\u00E9\u00DF", 2},
        {"a letter and an accent", std::string("x") + kAccented + "y", 3},
        {"two accents on one letter", "o\u0302\u0323", 1},
        {"an accent without a letter", "\u0301a", 2},
        {"a joined family", std::string(kFamily) + "!", 2},
        {"a joiner at the end", "a\u200D", 1},
        {"a flag between letters", std::string("a") + kFlag + "b", 3},
        {"two flags", std::string(kFlag) + kFlag, 2},
        {"half a flag", "\U0001F1F5x", 2},
        {"a skin tone", std::string(kThumb) + kThumb, 2},
        {"a variation selector", "\u2764\uFE0F", 1},
        {"beyond the basic plane", "\U00010348\U00010348", 2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        TextEdit edit;
        edit.SetText(c.text);
        const std::vector<std::size_t> borders = Borders(edit);
        EXPECT_EQ(borders.size() - 1, c.characters);
        for (std::size_t i = 1; i < borders.size(); ++i) {
            EXPECT_EQ(edit.Previous(borders[i]), borders[i - 1]);
        }
        EXPECT_EQ(edit.Previous(0), 0U);
        EXPECT_EQ(edit.Next(edit.Text().size()), edit.Text().size());
    }
}

TEST(TextEdit, TakesOneValidLine)
{
    const struct {
        const char* why;
        std::string inserted, text;
    } cases[] = {
        {"line ends and tabs vanish", "a\r\nb\tc\n", "abc"},
        {"other control characters too", std::string("a\0b\x1B[c\x7F", 7) + "\u0085\u2028\u2029d", "ab[cd"},
        {"broken bytes are replaced", "a\xFFz", "a\uFFFDz"},
        {"a sequence that is cut off", "a\xE2\x82", "a\uFFFD"},
        {"quotes and commas stay", "O\"Hara, Jr", "O\"Hara, Jr"},
        {"right to left", "\u05E9\u05DC\u05D5\u05DD", "\u05E9\u05DC\u05D5\u05DD"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        TextEdit typed;
        typed.Insert(c.inserted);
        EXPECT_EQ(typed.Text(), c.text);
        EXPECT_EQ(typed.Caret(), c.text.size());
        TextEdit set;
        set.SetText(c.inserted);
        EXPECT_EQ(set.Text(), c.text);
        set.SetComposition(c.inserted);
        EXPECT_EQ(set.Composition(), c.text);
    }
}

TEST(TextEdit, TakesNoMoreThanItsLongestText)
{
    const std::string accents = "e" + [] {
        std::string heap;
        for (int i = 0; i < 300; ++i) {
            heap += "\u0301";
        }
        return heap;
    }();
    const struct {
        const char* why;
        std::string before, inserted, after;
    } cases[] = {
        {"up to the end", "ab", "cde", "abcde"},
        {"and no further", "ab", "cdefg", "abcde"},
        {"counted in characters, not in bytes", "ñé", "ščř", "ñéščř"},
        {"no letter loses its accent", "abcd", "e\u0301", "abcd"},
        {"an accent counts", "abc", "e\u0301f", "abce\u0301"},
        {"a letter under a heap of accents", "", accents, ""},
        {"a pasted book", "", std::string(std::size_t{2} << 20, 'x'), "xxxxx"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        TextEdit edit(5);
        edit.SetText(c.before);
        edit.Insert(c.inserted);
        EXPECT_EQ(edit.Text(), c.after);
        edit.SelectAll();
        edit.Insert(c.before + c.inserted);
        EXPECT_EQ(edit.Text(), c.after) << "what is replaced makes room";
        edit.SetText(c.before + c.inserted);
        EXPECT_EQ(edit.Text(), c.after);
    }
}

TEST(TextEdit, ErasesWhatAReaderSeesAsOne)
{
    const struct {
        const char* why;
        std::string text;
        std::size_t caret;
        bool forward, word;
        std::string left;
    } cases[] = {
        {"a letter", "Ada", 3, false, false, "Ad"},
        {"nothing before the start", "Ada", 0, false, false, "Ada"},
        {"nothing behind the end", "Ada", 3, true, false, "Ada"},
        {"the letter behind", "Ada", 0, true, false, "da"},
        {"a letter with its accent", std::string("x") + kAccented, 4, false, false, "x"},
        {"a whole family", std::string("x") + kFamily, 12, false, false, "x"},
        {"the word before", "one two  ", 9, false, true, "one "},
        {"the word behind", "one two three", 4, true, true, "one three"},
        {"the rest of a word", "one two", 5, false, true, "one wo"},
        {"words apart by a wide blank", "\u00E9\u00E9\u3000\u00DF", 9, false, true, "\u00E9\u00E9\u3000"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        TextEdit edit;
        edit.SetText(c.text);
        edit.PlaceCaret(c.caret, false);
        edit.Erase(c.forward, c.word);
        EXPECT_EQ(edit.Text(), c.left);
        EXPECT_FALSE(edit.HasSelection());
    }
}

TEST(TextEdit, MovesTheCaretAndSelects)
{
    const struct {
        const char* why;
        std::size_t caret;
        std::vector<Move> moves;
        bool select;
        std::size_t end;
        std::string selected;
    } cases[] = {
        {"left and right", 4, {Move::Left, Move::Left, Move::Right}, false, 3, ""},
        {"not beyond the start", 1, {Move::Left, Move::Left}, false, 0, ""},
        {"not beyond the end", 12, {Move::Right, Move::Right}, false, 13, ""},
        {"home", 5, {Move::Home}, false, 0, ""},
        {"end", 5, {Move::End}, false, 13, ""},
        {"a word to the left lands at its start", 7, {Move::WordLeft}, false, 4, ""},
        {"a word to the left from a blank", 4, {Move::WordLeft}, false, 0, ""},
        {"a word to the right lands behind the blanks", 4, {Move::WordRight}, false, 9, ""},
        {"words, selecting", 0, {Move::WordRight, Move::WordRight}, true, 9, "one two  "},
        {"selecting backward", 7, {Move::WordLeft}, true, 4, "two"},
        {"there and back selects nothing", 5, {Move::Right, Move::Left}, true, 5, ""},
        {"to the end", 9, {Move::End}, true, 13, "four"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        TextEdit edit;
        edit.SetText("one two  four");
        edit.PlaceCaret(c.caret, false);
        for (const Move move : c.moves) {
            edit.MoveCaret(move, c.select);
        }
        EXPECT_EQ(edit.Caret(), c.end);
        EXPECT_EQ(edit.Selected(), c.selected);
    }
}

TEST(TextEdit, TreatsASelectionAsOneThing)
{
    TextEdit edit;
    edit.SetText("one two");
    edit.PlaceCaret(4, false);
    edit.MoveCaret(Move::End, true);
    edit.Insert("three");
    EXPECT_EQ(edit.Text(), "one three");
    EXPECT_EQ(edit.Caret(), 9U);

    edit.SelectAll();
    edit.MoveCaret(Move::Left, false);
    EXPECT_EQ(edit.Caret(), 0U) << "left leaves a selection at its start";
    edit.SelectAll();
    edit.MoveCaret(Move::Right, false);
    EXPECT_EQ(edit.Caret(), 9U) << "right at its end";

    edit.PlaceCaret(2, false);
    edit.PlaceCaret(5, true);
    edit.Erase(false, true);
    EXPECT_EQ(edit.Text(), "onhree") << "a selection is erased as it is, whatever the word";

    edit.SelectWordAt(3);
    EXPECT_EQ(edit.Selected(), "onhree");
    edit.Erase(true, false);
    edit.Erase(true, false);
    EXPECT_EQ(edit.Text(), "");
}

TEST(TextEdit, KeepsTheCaretBetweenCharacters)
{
    TextEdit edit;
    edit.SetText(std::string("a") + kAccented + "b");
    edit.PlaceCaret(2, false);  // between the e and its accent
    EXPECT_EQ(edit.Caret(), 4U);
    edit.PlaceCaret(99, false);
    EXPECT_EQ(edit.Caret(), 5U);

    edit.SetText("\u0301b");
    edit.PlaceCaret(0, false);
    edit.Insert("e");  // the accent that stood alone is now the e's
    EXPECT_EQ(edit.Caret(), 3U);
}

TEST(TextEdit, DropsTheCompositionWhenTheTextArrives)
{
    TextEdit edit;
    edit.SetText("ab");
    edit.PlaceCaret(1, false);
    edit.SetComposition("\u3042");
    EXPECT_EQ(edit.Text(), "ab");
    edit.Insert("\u4E9C");
    EXPECT_EQ(edit.Text(), "a\u4E9C\u0062");
    EXPECT_EQ(edit.Composition(), "");
}

}  // namespace
