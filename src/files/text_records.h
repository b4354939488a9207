// The text record format of every data file of the game: items separated by commas or line ends (LF or
// CR LF), texts in double quotes where they hold a comma, numbers in plain decimal.
//
//     Result<std::vector<Item>> items = ReadItems(folder.Path("data/names"), "data/names");
//
// Each item knows its line. Files are read whole and checked before anybody sees an item. A quote inside
// a quoted text is doubled; a text may hold line ends only where it is quoted.
#pragma once

#include "files/result.h"
#include "files/whole_file.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace files {

struct Item {
    std::string text{};
    bool quoted = false;
    int line = 0;
};

Result<std::vector<Item>> ParseItems(std::string_view content, std::string_view name);
Result<std::vector<Item>> ReadItems(const std::filesystem::path& path, std::string_view name);

// A whole number in plain decimal, blanks around it allowed; none when it is anything else. A plus sign may
// stand before it only in quotes, where a card wants to show one.
std::optional<std::int64_t> AsInteger(const Item& item);
// A finite number, also with a fraction or an exponent: "9.090909", "-3", "1e+30".
std::optional<double> AsDouble(const Item& item);
std::optional<float> AsFloat(const Item& item);

// How a record is written. A line is one record: Text("Ada") + kLineEnd.
inline constexpr std::string_view kLineEnd = "\r\n";
std::string Text(std::string_view text);  // in quotes, its own quotes doubled, made valid UTF-8
// At most so many digits; what is no number is written as 0.
inline constexpr int kDigits = 7;
std::string Number(float value, int digits = kDigits);

}  // namespace files
