#include "persist/record_errors.h"

#include "text/short_text.h"

namespace persist {

namespace {

constexpr std::size_t kShown = 24;  // characters of what was found; a broken file may hold very long ones

std::string Found(const files::Item& item)
{
    if (item.text.empty() && !item.quoted) {
        return "an empty line";
    }
    return '"' + text::Shortened(item.text, kShown) + '"';
}

}  // namespace

files::FileError Unexpected(std::string_view file, const files::Item& item, std::string_view of,
                            std::string_view expected)
{
    return {std::string(file), item.line,
            "expected " + std::string(expected) + " for " + std::string(of) + ", found " + Found(item)};
}

std::optional<files::FileError> WrongCount(std::string_view file, const std::vector<files::Item>& items,
                                           std::size_t expected)
{
    if (items.size() == expected) {
        return std::nullopt;
    }
    const int line = items.size() < expected ? (items.empty() ? 0 : items.back().line) : items[expected].line;
    return files::FileError{std::string(file), line,
                            "expected " + std::to_string(expected) + " records, found " +
                                (items.empty() ? "an empty file" : std::to_string(items.size()))};
}

}  // namespace persist
