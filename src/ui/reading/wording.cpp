#include "ui/reading/wording.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdint>
#include <utility>

namespace reading {

namespace {

// clang-format off
constexpr std::pair<std::string_view, std::string_view> kAbbreviations[] = {
    {"Mr.President", "Mister President"},
    {"Mr. President","Mister President"},
    {"C.I.A",        "CIA"},
    {"O.K.",         "Okay,"},
    {"\u2212",       "-"},          // the long minus
    {"\u202f",       " "},          // the narrow blanks that some locales put between digits
    {"\u00a0",       " "},
    {"\u00bb",       ""},           // the sign behind a cut bar
    {"\u2026",       "."},
    {". . .",        "."},
    {"$!",           "$"},
    {"v.2",          "Version 2"},
};
constexpr std::string_view kKeptCapitals[] = {"CIA", "OK", "USA"};
// clang-format on

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsUpper(char c)
{
    return c >= 'A' && c <= 'Z';
}

bool IsLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
}

// "Y O U   A R E" becomes "YOU   ARE": three or more single letters with single blanks are one word.
std::string Closed(std::string_view text)
{
    const auto letterAlone = [text](std::size_t at) {
        return at < text.size() && IsLetter(text[at]) && (at == 0 || text[at - 1] == ' ') &&
               (at + 1 == text.size() || text[at + 1] == ' ');
    };
    std::string closed;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t letters = 0;
        while (letterAlone(at + 2 * letters)) {
            ++letters;
        }
        if (letters >= 3) {
            for (std::size_t i = 0; i < letters; ++i) {
                closed += text[at + 2 * i];
            }
            at += 2 * letters - 1;
        } else {
            closed += text[at++];
        }
    }
    return closed;
}

// One blank between words and none before a stop.
std::string Tidy(std::string_view text)
{
    std::string tidy;
    for (const char c : text) {
        const bool blank = std::isspace(static_cast<unsigned char>(c)) != 0;
        if (blank && (tidy.empty() || tidy.back() == ' ')) {
            continue;
        }
        if (std::string_view("!?.,;:").find(c) != std::string_view::npos && !tidy.empty() &&
            tidy.back() == ' ') {
            tidy.pop_back();
        }
        tidy += blank ? ' ' : c;
    }
    while (!tidy.empty() && tidy.back() == ' ') {
        tidy.pop_back();
    }
    return tidy;
}

// Of a word, also in other scripts.
bool InWord(char c)
{
    return IsLetter(c) || (static_cast<unsigned char>(c) & 0x80U) != 0;
}

// A voice may spell what is printed in capitals.
std::string Calm(std::string_view text)
{
    std::string calm(text);
    for (std::size_t at = 0; at < calm.size();) {
        std::size_t end = at;
        while (end < calm.size() && IsUpper(calm[end])) {
            ++end;
        }
        const std::string_view word = std::string_view(calm).substr(at, end - at);
        const bool whole = (at == 0 || !InWord(calm[at - 1])) && (end == calm.size() || !InWord(calm[end]));
        const bool kept =
            std::find(std::begin(kKeptCapitals), std::end(kKeptCapitals), word) != std::end(kKeptCapitals);
        if (whole && !kept) {
            for (std::size_t i = at + 1; i < end; ++i) {
                calm[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(calm[i])));
            }
        }
        at = std::max(end, at + 1);
    }
    return calm;
}

// A printed number: where it ends, its digits without what stands between their groups, and its decimals.
struct Number {
    std::size_t end = 0;
    std::string digits;
    std::string decimals;
};

Number ReadNumber(std::string_view text, std::size_t at)
{
    Number number;
    const auto digitsFrom = [text](std::size_t from) {
        std::size_t count = 0;
        while (from + count < text.size() && IsDigit(text[from + count])) {
            ++count;
        }
        return count;
    };
    std::size_t count = digitsFrom(at);
    number.digits = text.substr(at, count);
    at += count;
    if (count <= 3) {
        while (at < text.size() && std::string_view(",.' ").find(text[at]) != std::string_view::npos &&
               digitsFrom(at + 1) == 3) {
            number.digits += text.substr(at + 1, 3);
            at += 4;
        }
    }
    if (at + 1 < text.size() && (text[at] == '.' || text[at] == ',') && digitsFrom(at + 1) > 0) {
        count = digitsFrom(at + 1);
        number.decimals = text.substr(at + 1, count);
        at += 1 + count;
    }
    number.end = at;
    return number;
}

std::string Grouped(std::string_view digits)
{
    std::string grouped;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) {
            grouped += ',';
        }
        grouped += digits[i];
    }
    return grouped;
}

// Three digits and the word for the rest: 15630952 is "15.6 million".
std::string Rounded(std::string_view digits)
{
    constexpr std::array<std::string_view, 4> kWords{" thousand", " million", " billion", " trillion"};
    std::int64_t value = 0;
    std::size_t dropped = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        value = 10 * value + (digits[i] - '0');
    }
    dropped = digits.size() - 3;
    value += digits[3] >= '5' ? 1 : 0;
    if (value == 1000) {
        value = 100;
        ++dropped;
    }
    const std::size_t power = (dropped + 2) / 3;  // of a thousand
    const std::size_t decimals = 3 * power - dropped;
    std::string said = std::to_string(value);
    std::string fraction = said.substr(said.size() - decimals);
    said.resize(said.size() - decimals);
    fraction.erase(fraction.find_last_not_of('0') + 1);
    if (!fraction.empty()) {
        said += "." + fraction;
    }
    return said + std::string(kWords.at(power - 1));
}

std::string SaidNumber(const Number& number, Sums sums)
{
    constexpr std::size_t kMillion = 7;  // digits
    constexpr std::size_t kMost = 15;    // beyond that it is no amount
    const std::string& digits = number.digits;
    if (!number.decimals.empty()) {
        return Grouped(digits) + "." + number.decimals;
    }
    const bool large = digits.size() >= kMillion && digits.size() <= kMost && digits.front() != '0';
    return large && sums == Sums::Rounded ? Rounded(digits) : Grouped(digits);
}

// A sign belongs to a number when nothing but a blank or a bracket stands before it.
std::string_view SignWord(std::string_view text, std::size_t at)
{
    const bool sign = (text[at] == '-' || text[at] == '+') && at + 1 < text.size() && IsDigit(text[at + 1]) &&
                      (at == 0 || text[at - 1] == ' ' || text[at - 1] == '(');
    return !sign ? "" : text[at] == '-' ? "minus " : "plus ";
}

std::string SaidNumbers(std::string_view text, Sums sums)
{
    std::string said;
    for (std::size_t at = 0; at < text.size();) {
        if (const std::string_view sign = SignWord(text, at); !sign.empty()) {
            said += sign;
            ++at;
        } else if (IsDigit(text[at]) && (at == 0 || (!IsLetter(text[at - 1]) && text[at - 1] != '.'))) {
            const Number number = ReadNumber(text, at);
            said += SaidNumber(number, sums);
            at = number.end;
        } else if (text[at] == '$' && at + 1 < text.size() && IsDigit(text[at + 1])) {
            const Number number = ReadNumber(text, at + 1);
            said += SaidNumber(number, sums) + " dollars";
            at = number.end;
        } else if (text[at] == '$' && at > 0 && IsDigit(text[at - 1])) {
            said += " dollars";
            ++at;
        } else if (text[at] == '%') {
            said += " per cent";
            ++at;
        } else {
            said += text[at++];
        }
    }
    return said;
}

}  // namespace

std::string Said(std::string_view printed, Sums sums)
{
    std::string text = Closed(printed);
    for (const auto& [what, by] : kAbbreviations) {
        ReplaceAll(text, what, by);
    }
    return Tidy(SaidNumbers(Calm(Tidy(text)), sums));
}

std::string WithGroups(std::int64_t amount)
{
    const std::string digits = std::to_string(amount);
    return amount < 0 ? "-" + Grouped(std::string_view(digits).substr(1)) : Grouped(digits);
}

std::string SaidChange(std::string_view printed)
{
    const std::string said = Said(printed);
    if (said == "0") {
        return "no change";
    }
    return !said.empty() && IsDigit(said.front()) ? "plus " + said : said;
}

std::string SaidChief(std::string_view printed)
{
    std::string said = Said(printed);
    const auto stroke = said.rfind('/');
    const auto blank = said.rfind(' ', stroke);
    if (stroke == std::string::npos || blank == std::string::npos) {
        return said;
    }
    return said.substr(0, blank) + ", ability " + said.substr(blank + 1, stroke - blank - 1) + ", ambition " +
           said.substr(stroke + 1);
}

std::vector<std::string> Lines(std::string_view said)
{
    constexpr std::string_view kBreaks[] = {". ", "! ", "? ", "; ", ", ", ": ", " "};
    std::vector<std::string> lines;
    while (said.size() > kLongestLine) {
        const std::string_view head = said.substr(0, kLongestLine);
        std::size_t cut = std::string_view::npos;
        for (std::size_t i = 0; i < 3; ++i) {  // the last sentence that ends within
            const auto at = head.rfind(kBreaks[i]);
            cut = at == std::string_view::npos ? cut : cut == std::string_view::npos ? at : std::max(cut, at);
        }
        for (std::size_t i = 3; cut == std::string_view::npos && i < std::size(kBreaks); ++i) {
            cut = head.rfind(kBreaks[i]);
        }
        std::size_t length = cut == std::string_view::npos ? kLongestLine - 1 : cut + 1;
        while (length > 1 && (static_cast<unsigned char>(said[length]) & 0xC0U) == 0x80U) {
            --length;  // never within a letter
        }
        lines.push_back(Tidy(said.substr(0, length)));
        said.remove_prefix(length);
        said.remove_prefix(std::min(said.find_first_not_of(' '), said.size()));
    }
    if (!said.empty()) {
        lines.emplace_back(said);
    }
    return lines;
}

std::string Sentence(std::string text)
{
    while (!text.empty() && (text.back() == ' ' || text.back() == ',' || text.back() == ':')) {
        text.pop_back();
    }
    if (!text.empty() && std::string_view(".!?").find(text.back()) == std::string_view::npos) {
        text += '.';
    }
    return text;
}

std::string Lowered(std::string_view text)
{
    std::string lowered(text);
    std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                   [](unsigned char c) { return static_cast<char>(c < 0x80 ? std::tolower(c) : c); });
    return lowered;
}

std::string Capital(std::string text)
{
    if (!text.empty() && static_cast<unsigned char>(text.front()) < 0x80) {
        text.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(text.front())));
    }
    return text;
}

std::string Filled(std::string_view pattern, std::string_view mark, std::string_view text)
{
    std::string filled(pattern);
    if (const auto at = filled.find(mark); at != std::string::npos) {
        filled.replace(at, mark.size(), text);
    }
    return filled;
}

}  // namespace reading
