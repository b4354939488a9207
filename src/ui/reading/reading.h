// From the desktop to words: all that is shown, what opens, what has the focus, what changed.
//
//     ReadAll(desktop)            // every line, the front screen first
//     FocusLine(*desktop.Focused())  // "Raise, button. Workers, tax rate 2, tax income 6.18 million dollars. Row 1 of 6."
//
// Every line is at most kLongestLine bytes.
#pragma once

#include "ui/reading/page.h"
#include "ui/toolkit/desktop.h"

#include <string>
#include <vector>

namespace reading {

std::vector<std::string> ReadAll(const ui::Desktop& desktop);
// A whole screen, with what the pictures show and the papers say.
std::vector<std::string> ReadScreen(const Page& page);
// What is said when it opens.
std::vector<std::string> Summary(const Page& page);
std::string FocusLine(const ui::Control& control);

// What a screen said, row by row, to be compared with what it says later.
class Memory {
public:
    explicit Memory(const Page& page);
    // The rows that say something new.
    std::vector<std::string> News(const Page& page) const;

private:
    struct Kept {
        const ui::Control* first;
        std::string line;
    };
    std::vector<Kept> rows_;
};

}  // namespace reading
