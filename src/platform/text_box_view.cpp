#include "platform/text_box_view.h"

#include "ui/look/look.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr double kInset = 10;
constexpr double kCaretWidth = 2;

Type TypeOf(const ui::TextBox& box, double scale)
{
    return {box.Style().face, box.Style().sizes[0].size, scale};
}

// The text with what is being composed put in at the caret.
std::string Shown(const ui::TextEdit& edit)
{
    std::string text = edit.Text();
    return text.insert(edit.Caret(), edit.Composition());
}

// Distances from the text's left edge, in the picture space.
double XOf(Letters& letters, const std::string& text, std::size_t offset, const Type& type)
{
    return letters.XOf(text, offset, type) / type.scale;
}

}  // namespace

double TextBoxView::Scrolled(const ui::TextBox& box) const
{
    const auto it = scrolled_.find(&box);
    return it == scrolled_.end() ? 0 : it->second;
}

void TextBoxView::Paint(Brush& brush, const ui::TextBox& box)
{
    Canvas& canvas = brush.canvas;
    const BoxF place = box.Place();
    const bool enabled = box.Now().enabled;
    canvas.Rounded(place, 3, Ink::Flat(enabled ? look::kField : look::kFieldOff));
    canvas.Frame(place, 3, 1, look::kFieldLine);
    canvas.Fill({place.left + 2, place.top + 1.5, place.width - 4, 2}, look::kFieldOff);

    const ui::TextEdit& edit = box.Edit();
    const Type type = TypeOf(box, canvas.View().scale);
    const std::string text = Shown(edit);
    const std::size_t caret = edit.Caret() + edit.Composition().size();
    const double caretX = XOf(brush.letters, text, caret, type);
    const double room = place.width - 2 * kInset;

    // Moved no further than needed to show the caret, and never past the text's end.
    const double most = std::max(0.0, XOf(brush.letters, text, text.size(), type) + kCaretWidth - room);
    double& scrolled = scrolled_[&box];
    scrolled = std::min(
        std::clamp(scrolled, std::max(0.0, caretX + kCaretWidth - room), std::max(caretX, 0.0)), most);
    const double left = place.left + kInset - scrolled;

    const auto clip = canvas.Clipped(
        ui::Rect{box.Place().left + 4, box.Place().top + 2, box.Place().width - 8, box.Place().height - 4});
    const double top = place.top + 7;
    const double height = place.height - 14;
    if (&box == focused_ && edit.HasSelection() && edit.Composition().empty()) {
        const double from = XOf(brush.letters, text, edit.SelectionStart(), type);
        const double to = XOf(brush.letters, text, edit.SelectionEnd(), type);
        canvas.Fill({left + from, top - 1, to - from, height + 2}, look::kSun);
    }
    const double baseline = place.MiddleY() + 0.34 * type.size;
    PaintLine(brush, text, type.face, type.size, ui::Align::Left, {left, baseline},
              enabled ? box.Now().fore : look::kUsedRow);
    if (!edit.Composition().empty()) {
        const double from = XOf(brush.letters, text, edit.Caret(), type);
        canvas.Fill({left + from, baseline + 3, caretX - from, 1}, look::kInk);
    }
    if (&box == focused_) {
        canvas.Fill({left + caretX + (caret == 0 ? -1 : 0), top, kCaretWidth, height}, look::kInk);
    }
}

std::size_t TextBoxView::CaretAt(Letters& letters, const ui::TextBox& box, int x, double scale) const
{
    const double inText = x + 0.5 - box.Place().left - kInset + Scrolled(box);
    return letters.OffsetAt(box.Edit().Text(), inText * scale, TypeOf(box, scale));
}

ui::Rect TextBoxView::CaretPlace(Letters& letters, const ui::TextBox& box, double scale) const
{
    const double x = XOf(letters, box.Edit().Text(), box.Edit().Caret(), TypeOf(box, scale)) - Scrolled(box);
    const ui::Rect& place = box.Place();
    return {place.left + static_cast<int>(kInset + x), place.top, 2, place.height};
}

}  // namespace platform
