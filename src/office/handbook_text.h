// The state handbook as plain lines, for machines on which nothing shows a page.
//
//     const Handbook book = ReadHandbook(html);
//     book.lines[book.ChapterAt("murder")]       // "ASSASSINS"
//
// It is our own file, so the few tags that it uses are known: blocks begin a line, cells of a table stand side by side,
// headings are capitals, pictures and drawings are left out.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace office {

inline constexpr std::size_t kHandbookColumns = 82;

struct Handbook {
    std::vector<std::string> lines{};
    std::map<std::string, std::size_t, std::less<>> chapters{};  // the line at which each mark stands

    // 0 for a mark that is not there.
    std::size_t ChapterAt(std::string_view mark) const;
};

Handbook ReadHandbook(std::string_view html);

}  // namespace office
