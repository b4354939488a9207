// A page has the game's own typefaces and no others: a character that they lack is shown as lacking.
#include "platform/font_search.h"

namespace platform {

FontSearch::FontSearch() = default;
FontSearch::~FontSearch() = default;

std::string FontSearch::File(const char*, const char*) const
{
    return {};
}

std::string FontSearch::FileWith(char32_t) const
{
    return {};
}

}  // namespace platform
