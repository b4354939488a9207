// What fontconfig is asked: the file of a family and style, and a file that has a character.
//
//     FontSearch search;                                  // reads the system's list of fonts
//     search.File("Cabin", "Bold");                       // the nearest there is
#pragma once

#include <string>

namespace platform {

class FontSearch {
public:
    FontSearch();
    ~FontSearch();
    FontSearch(const FontSearch&) = delete;
    FontSearch& operator=(const FontSearch&) = delete;

    // Empty when there is no font at all.
    std::string File(const char* family, const char* style) const;
    std::string FileWith(char32_t character) const;
};

}  // namespace platform
