// Paints one control as it is now: at rest, under the pointer, pressed, disabled, chosen, focused.
#pragma once

#include "platform/brush.h"
#include "platform/text_box_view.h"
#include "ui/toolkit/control.h"

namespace platform {

struct ControlLight {
    bool hovered = false;
    bool pressed = false;
    bool focused = false;  // and the ring is to be seen
};

// How far a control's paint may reach beyond its place: rings, shadows, the signs beside a number.
inline constexpr int kControlReach = 24;

// Where a control's text is laid out within its place.
BoxF TextPlace(const ui::Control& control);
// Whether one of the style's sizes holds the control's text. For tests of screens.
bool TextFits(Letters& letters, const ui::Control& control);

// The strip that lights up behind a table row; painted before the row's controls.
void PaintRow(Brush& brush, const ui::Control& control);
void PaintControl(Brush& brush, const ui::Control& control, const ControlLight& light, TextBoxView& boxes);
// The ring around the focused control; painted after its neighbours.
void PaintRing(Brush& brush, const ui::Control& control);

}  // namespace platform
