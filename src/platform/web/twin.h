// The twin of the canvas: all that is shown, row by row as it is read aloud, for a page that makes real buttons, fields
// and tables of it. What is done there is done to the same controls.
#pragma once

#include "ui/toolkit/desktop.h"

#include <string>
#include <vector>

namespace platform {

class Twin {
public:
    explicit Twin(ui::Desktop& desktop) : desktop_(desktop) {}

    // Hands the page what is shown, when it differs from what was told last.
    void Tell();
    // A control by its number in what was told last; anything else is ignored.
    void Do(const std::string& what, int control, const std::string& text);

private:
    ui::Desktop& desktop_;
    std::vector<const ui::Control*> told_;
    std::string last_;
};

}  // namespace platform
