#include "core/short_text.h"

#include "ui/toolkit/text_edit.h"

namespace core {

namespace {

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
    ui::TextEdit edit;  // it knows where characters end
    edit.SetText(text);
    const std::string& line = edit.Text();
    std::size_t used = 0;
    std::size_t kept = 0;  // how much stands before the dots
    for (std::size_t at = 0; at < line.size(); at = edit.Next(at)) {
        used += ColumnsOf(line[at]);
        if (used > columns) {
            return line.substr(0, kept) + "…";
        }
        kept = used < columns ? edit.Next(at) : kept;
    }
    return line;
}

}  // namespace core
