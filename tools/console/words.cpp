#include "console/words.h"

#include "console/reply.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace console {

namespace {

constexpr std::string_view kBlanks = " \t\r";

// How many characters a quoted word takes at the start of rest, both quotes included.
std::size_t QuotedLength(std::string_view rest)
{
    for (std::size_t i = 1; i < rest.size(); ++i) {
        if (rest[i] == '\\') {
            ++i;
        } else if (rest[i] == '"') {
            return i + 1;
        }
    }
    throw Refused("the text " + std::string(rest) + " has no closing quote");
}

std::string Unquoted(std::string_view word)
{
    const nlohmann::json text = nlohmann::json::parse(word, nullptr, false);
    if (!text.is_string()) {
        throw Refused(std::string(word) + " is no JSON string");
    }
    return text.get<std::string>();
}

// A number as JSON writes it; none when the word is anything else, or larger than a double.
std::optional<nlohmann::json> AsNumber(const std::string& word)
{
    nlohmann::json number = nlohmann::json::parse(word, nullptr, false);
    return number.is_number() ? std::optional(std::move(number)) : std::nullopt;
}

// Whole numbers up to 2^63 stay exact; all others become the nearest float.
core::Value ValueOf(const nlohmann::json& number)
{
    constexpr double kLimit = 0x1p63;
    const auto value = number.get<double>();
    if (number.is_number_integer() && value > -kLimit && value < kLimit) {
        return number.get<std::int64_t>();
    }
    if (value == std::floor(value) && std::abs(value) < kLimit) {
        return static_cast<std::int64_t>(value);
    }
    // What no float can hold is for the field to refuse.
    return std::abs(value) > std::numeric_limits<float>::max() ? std::numeric_limits<float>::infinity()
                                                               : static_cast<float>(value);
}

}  // namespace

Words::Words(std::string_view line)
{
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        if (line.empty()) {
            return;
        }
        const bool quoted = line.front() == '"';
        const std::size_t length =
            quoted ? QuotedLength(line) : std::min(line.find_first_of(kBlanks), line.size());
        const std::string_view word = line.substr(0, length);
        line.remove_prefix(length);
        if (quoted && !line.empty() && kBlanks.find(line.front()) == std::string_view::npos) {
            throw Refused("expected a blank behind " + std::string(word));
        }
        words_.push_back({quoted ? Unquoted(word) : std::string(word), quoted});
    }
}

void Words::End() const
{
    if (!AtEnd()) {
        throw Refused("expected nothing more, found " + words_[next_].text);
    }
}

std::string Words::Peek() const
{
    return AtEnd() ? std::string() : words_[next_].text;
}

const Words::Word& Words::Take(std::string_view what)
{
    if (AtEnd()) {
        throw Refused("expected " + std::string(what) + ", found the end of the line");
    }
    return words_[next_++];
}

std::string Words::Name(std::string_view what)
{
    const Word& word = Take(what);
    if (word.quoted) {
        throw Refused("expected " + std::string(what) + ", found the text \"" + word.text + '"');
    }
    return word.text;
}

std::string Words::Text()
{
    const Word& word = Take("a text in quotes");
    if (!word.quoted) {
        throw Refused("expected a text in quotes, found " + word.text);
    }
    return word.text;
}

std::int64_t Words::Count(std::string_view what)
{
    const std::string word = Name(what);
    std::int64_t value = 0;
    const auto [stop, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || stop != word.data() + word.size() || value < 0) {
        throw Refused("expected " + std::string(what) + ", found " + word);
    }
    return value;
}

double Words::Number(std::string_view what)
{
    const std::string word = Name(what);
    const auto number = AsNumber(word);
    if (!number) {
        throw Refused("expected " + std::string(what) + ", found " + word);
    }
    return number->get<double>();
}

core::Value Words::Value()
{
    constexpr std::string_view kWhat = "a number or a text in quotes";
    const Word& word = Take(kWhat);
    if (word.quoted) {
        return word.text;
    }
    const auto number = AsNumber(word.text);
    if (!number) {
        throw Refused("expected " + std::string(kWhat) + ", found " + word.text);
    }
    return ValueOf(*number);
}

}  // namespace console
