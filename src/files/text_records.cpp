#include "files/text_records.h"

#include "files/decimal.h"

#include <utf8.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace files {

namespace {

// Walks through one file; the position is always at the start of an item or at the end.
class Parser {
public:
    Parser(std::string_view content, std::string_view name) : rest_(content), name_(name) {}

    Result<std::vector<Item>> Parse()
    {
        std::vector<Item> items;
        bool afterComma = false;
        while (!rest_.empty() || afterComma) {
            Item item{.line = line_};
            if (std::optional<FileError> error = TakeItem(item)) {
                return *error;
            }
            items.push_back(std::move(item));
            afterComma = TakeSeparator();
        }
        return items;
    }

private:
    FileError Wrong(std::string what) const { return {std::string(name_), line_, std::move(what)}; }
    bool At(char c) const { return !rest_.empty() && rest_.front() == c; }
    bool AtSeparator() const { return rest_.empty() || At(',') || At('\n') || rest_.starts_with("\r\n"); }

    // Blanks count as part of an unquoted item; around a quoted one they are passed over.
    void PassBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size())); }

    std::optional<FileError> TakeItem(Item& item)
    {
        const std::string_view withBlanks = rest_;
        PassBlanks();
        if (At('"')) {
            return TakeQuoted(item);
        }
        rest_ = withBlanks;
        while (!AtSeparator()) {
            item.text += rest_.front();
            rest_.remove_prefix(1);
        }
        return std::nullopt;
    }

    std::optional<FileError> TakeQuoted(Item& item)
    {
        item.quoted = true;
        rest_.remove_prefix(1);
        while (!rest_.empty()) {
            if (rest_.starts_with("\"\"")) {
                rest_.remove_prefix(1);
            } else if (At('"')) {
                rest_.remove_prefix(1);
                PassBlanks();
                if (AtSeparator()) {
                    return std::nullopt;
                }
                return Wrong("expected a comma or the line's end behind the closing quote");
            }
            line_ += At('\n') ? 1 : 0;
            item.text += rest_.front();
            rest_.remove_prefix(1);
        }
        return FileError{std::string(name_), item.line, "the text that begins here has no closing quote"};
    }

    // Returns whether it was a comma, behind which one more item must follow.
    bool TakeSeparator()
    {
        if (At(',')) {
            rest_.remove_prefix(1);
            return true;
        }
        if (!rest_.empty()) {
            rest_.remove_prefix(At('\n') ? 1 : 2);
            ++line_;
        }
        return false;
    }

    std::string_view rest_;
    std::string_view name_;
    int line_ = 1;
};

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// The item as std::from_chars takes it: without blanks, and without the plus sign that a quoted number may show.
std::string_view DigitsOf(const Item& item)
{
    std::string_view digits = Trimmed(item.text);
    if (item.quoted && digits.size() > 1 && digits[0] == '+' && digits[1] != '-') {
        digits.remove_prefix(1);
    }
    return digits;
}

template <class T> std::optional<T> Finite(const Item& item)
{
    const std::string_view digits = DigitsOf(item);
    T value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = ReadDecimal(digits.data(), end, value);
    if (error != std::errc{} || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

}  // namespace

Result<std::vector<Item>> ParseItems(std::string_view content, std::string_view name)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (content.starts_with(kByteOrderMark)) {
        content.remove_prefix(kByteOrderMark.size());
    }
    if (const auto bad = utf8::find_invalid(content); bad != std::string_view::npos) {
        const auto line =
            std::count(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(bad), '\n');
        return FileError{std::string(name), static_cast<int>(line) + 1,
                         "expected UTF-8 text, found other bytes"};
    }
    return Parser(content, name).Parse();
}

Result<std::vector<Item>> ReadItems(const std::filesystem::path& path, std::string_view name)
{
    Result<std::string> content = ReadWhole(path, name);
    if (!content) {
        return content.Error();
    }
    return ParseItems(*content, name);
}

std::optional<std::int64_t> AsInteger(const Item& item)
{
    const std::string_view digits = DigitsOf(item);
    std::int64_t value = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc{} || stop != end) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> AsDouble(const Item& item)
{
    return Finite<double>(item);
}

std::optional<float> AsFloat(const Item& item)
{
    return Finite<float>(item);
}

std::string Text(std::string_view text)
{
    std::string valid;
    utf8::replace_invalid(text.begin(), text.end(), std::back_inserter(valid));
    std::string quoted = "\"";
    for (const char c : valid) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + '"';
}

std::string Number(float value, int digits)
{
    char written[32];
    const auto [end, error] =
        WriteDecimal(std::begin(written), std::end(written), std::isfinite(value) ? value : 0.0F, digits);
    return {written, end};
}

}  // namespace files
