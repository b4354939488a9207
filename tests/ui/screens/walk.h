// Walks over all screens as they were written down, one at a time.
#pragma once

#include "platform/control_painter.h"
#include "platform/text_layout.h"
#include "support/temporary_folder.h"
#include "ui/screens/screens.h"
#include "ui/toolkit/desktop.h"

#include <gtest/gtest.h>

#include <string>

namespace test {

inline std::string Whole(const ui::Control& control)
{
    return control.GetForm().Name() + "." + control.Name();
}

// Pictures carry a caption for the case that their file is missing, and the bars of a rate button are drawn.
inline bool PaintsText(const ui::Control& control)
{
    const ui::Control::Kind kind = control.GetKind();
    return kind != ui::Control::Kind::Picture && kind != ui::Control::Kind::Shape &&
           kind != ui::Control::Kind::Graph && control.Style().ornament != ui::Ornament::RateButton &&
           control.Style().ornament != ui::Ornament::ArrowButton;
}

class ScreenWalk : public testing::Test {
protected:
    platform::TextLayout LayOut(const ui::Control& control)
    {
        return platform::LayOut(letters_, control.Text(), control.Style(), platform::TextPlace(control));
    }

    // Where ink can be; headings have capitals only, so nothing of them hangs below their baseline.
    static platform::BoxF InkBox(const platform::TextLayout& layout, const ui::Control& control)
    {
        platform::BoxF box = layout.Bounds();
        if (control.Style().face == ui::Face::Heading && !layout.lines.empty()) {
            box.height = layout.lines.back().baseline + 1 - box.top;
        }
        return box;
    }

    // Shows each screen alone, with everything on it visible, and runs `look(form)`.
    template <class Look> void ForEachAlone(const Look& look)
    {
        for (ui::Form* form : desktop_.Forms()) {
            form->Show();
            for (ui::Control* control : form->Controls()) {
                control->SetVisible(true);
            }
            if (form == &screens_.frmMonthBanner) {
                screens_.frmMonthBanner.Label1.SetRect(screens::kBannerCaption);  // its place below a picture
            }
            look(*form);
            form->Unload();
        }
    }

    ui::Desktop desktop_;
    screens::Screens screens_{desktop_};
    platform::Letters letters_;
};

}  // namespace test
