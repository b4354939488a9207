// Whatever bytes a data file holds, the record reader ends in items or in a reason with a line that exists.
#include "files/text_records.h"
#include "demand.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view content(reinterpret_cast<const char*>(data), size);
    const auto lines = 1 + std::count(content.begin(), content.end(), '\n');
    const auto items = files::ParseItems(content, "input");
    if (!items) {
        Demand(items.Error().line <= lines && !items.Error().Message().empty());
        return 0;
    }
    int line = 1;
    for (const files::Item& item : *items) {
        Demand(line <= item.line && item.line <= lines);
        line = item.line;
        // A number read from an item is written in the item's own digits.
        Demand(!files::AsInteger(item) || item.text.find_first_of("0123456789") != std::string::npos);
    }
    return 0;
}
