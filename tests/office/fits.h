// Whether every text that a screen shows now has a size at which it fits its place.
#pragma once

#include "platform/control_painter.h"
#include "platform/text_layout.h"
#include "ui/toolkit/form.h"

#include <gtest/gtest.h>

#include <string>

namespace test {

inline void ExpectAllFit(const ui::Form& form, const std::string& why)
{
    platform::Letters letters;
    for (const ui::Control* control : form.Controls()) {
        if (control->Now().visible && !control->Text().empty() &&
            control->GetKind() != ui::Control::Kind::Picture) {
            EXPECT_TRUE(platform::TextFits(letters, *control))
                << why << ": " << control->Name() << ": " << control->Text();
        }
    }
}

}  // namespace test
