#include "platform/painter.h"

#include "platform/control_painter.h"
#include "platform/decor_painter.h"
#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

// The backdrop's red is the sign of an uprising.
bool Uprising(const ui::Desktop& desktop)
{
    const auto& shown = desktop.Shown();
    return !shown.empty() && shown.front()->GetDesign().backdrop && shown.front()->Back() == look::kRed;
}

ControlLight LightOf(const ui::Desktop& desktop, const ui::Control& control)
{
    return {.hovered = desktop.Hovered() == &control,
            .pressed = desktop.Pressed() == &control && desktop.Hovered() == &control,
            .focused = desktop.Focused() == &control &&
                       (desktop.ShowsFocus() || control.GetKind() == ui::Control::Kind::TextBox)};
}

// Only a row that keys reach, too, may be picked.
bool LightsRow(const ui::Control& control, const ControlLight& light)
{
    return control.Style().ornament == ui::Ornament::Row && control.Focusable() &&
           (light.hovered || light.focused);
}

// A picture that fills its screen lies under what is printed on it.
bool IsGround(const ui::Control& control)
{
    return control.GetKind() == ui::Control::Kind::Picture && control.Place() == control.GetForm().Place();
}

// The backdrop speaks only while nothing stands before its text: half a sentence beside a dialog helps nobody.
bool Covered(const ui::Desktop& desktop, const ui::Control& control)
{
    const auto& shown = desktop.Shown();
    return control.GetForm().GetDesign().backdrop &&
           std::any_of(shown.begin(), shown.end(), [&control](const ui::Form* form) {
               return form != &control.GetForm() && form->Place().Overlaps(control.Place());
           });
}

bool IsShown(const ui::Form& form, std::string_view file)
{
    const auto& controls = form.Controls();
    return DecorShows(form, file) ||
           std::any_of(controls.begin(), controls.end(), [file](const ui::Control* each) {
               return each->Now().visible && each->Now().picture == file;
           });
}

}  // namespace

void Painter::PaintForm(Brush& brush, const ui::Desktop& desktop, const ui::Form& form)
{
    brush.ground.secret = IsSecret(form);
    brush.ground.uprising = !form.GetDesign().backdrop && Uprising(desktop);
    if (form.GetDesign().opaque) {
        brush.canvas.Fill(form.Place(), form.Back());
    }
    std::vector<const ui::Control*> touched;
    for (const ui::Control* control : form.Controls()) {
        const ui::Rect reach = Union(control->Place(), control->Row()).Grown(kControlReach);
        if (!control->Now().visible || !brush.canvas.Touches(reach) || Covered(desktop, *control)) {
            continue;
        }
        if (IsGround(*control)) {
            PaintControl(brush, *control, {}, boxes_);
        } else {
            touched.push_back(control);
        }
    }
    PaintDecor(brush, form);
    for (const ui::Control* control : touched) {
        const ControlLight light = LightOf(desktop, *control);
        if (LightsRow(*control, light)) {
            PaintRow(brush, *control);
        }
    }
    for (const ui::Control* control : touched) {
        // What stands over by more than a sign's width would be left behind when the control changes.
        const auto clip = brush.canvas.Clipped(control->Place().Grown(kControlReach));
        PaintControl(brush, *control, LightOf(desktop, *control), boxes_);
    }
    for (const ui::Control* control : touched) {
        if (LightOf(desktop, *control).focused) {
            PaintRing(brush, *control);
        }
    }
}

SDL_Rect Painter::Paint(const ui::Desktop& desktop, SDL_Surface& surface, const Viewport& viewport,
                        const ui::Rect& dirty)
{
    if (!(viewport == viewport_)) {
        letters_.KeepOnly(viewport.scale);
        pictures_.Clear();
        viewport_ = viewport;
    }
    DropUnseenPictures(desktop);
    boxes_.SetFocused(desktop.FocusedTextBox());

    Canvas canvas(surface, viewport);
    const auto clip = canvas.Clipped(viewport.Cover(Intersection(dirty.Grown(kControlReach), ui::kSpace)));
    canvas.Fill(ui::kSpace, look::kBlack);
    Brush brush{canvas, letters_, pictures_};
    for (const ui::Form* form : desktop.Shown()) {
        PaintForm(brush, desktop, *form);
    }
    return canvas.Clip();
}

// Done before painting, so that the pictures of two screens are never held at once.
void Painter::DropUnseenPictures(const ui::Desktop& desktop)
{
    pictures_.KeepOnly([&desktop](const std::string& file) {
        const auto& shown = desktop.Shown();
        return std::any_of(shown.begin(), shown.end(),
                           [&file](const ui::Form* form) { return IsShown(*form, file); });
    });
}

bool Painter::Fits(const ui::Control& control)
{
    return TextFits(letters_, control);
}

}  // namespace platform
