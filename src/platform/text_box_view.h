// The inside of text boxes: letters, caret, selection, text being composed, and the part that is in view.
//
// A text that is wider than its box is moved so far that the caret shows. The same view tells which
// character lies under the pointer, so a click always lands where the eye is.
#pragma once

#include "platform/brush.h"
#include "ui/toolkit/control.h"

#include <map>

namespace platform {

class TextBoxView {
public:
    // The box whose caret is to be seen; null for none.
    void SetFocused(const ui::TextBox* box) { focused_ = box; }
    void Paint(Brush& brush, const ui::TextBox& box);
    // The offset in the box's text nearest to x of the picture space.
    std::size_t CaretAt(Letters& letters, const ui::TextBox& box, int x, double scale) const;
    // Where the caret stands, in the picture space, for the list of an input method.
    ui::Rect CaretPlace(Letters& letters, const ui::TextBox& box, double scale) const;

private:
    double Scrolled(const ui::TextBox& box) const;

    const ui::TextBox* focused_ = nullptr;
    std::map<const ui::TextBox*, double> scrolled_;  // how far texts are moved left, in the picture space
};

}  // namespace platform
