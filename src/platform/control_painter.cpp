#include "platform/control_painter.h"

#include "platform/button_look.h"
#include "platform/graph_painter.h"
#include "platform/message_band.h"
#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <array>
#include <charconv>

namespace platform {

namespace {

using ui::Control;
using ui::Ornament;
using ui::Rgb;

ButtonLook LookOf(const Brush& brush, const Control& control, const ControlLight& light)
{
    const bool danger = control.Style().ornament == Ornament::DangerButton;
    if (!control.Now().enabled) {
        return brush.ground.secret ? button::kDisabledSecret : button::kDisabled;
    }
    if (light.pressed) {
        return button::kPressed;
    }
    ButtonLook look = light.hovered ? button::kHover : danger ? button::kDanger : button::kNormal;
    if (!light.hovered) {
        look.text = control.Now().fore;
    }
    if (danger) {
        look.edge = button::kDanger.edge;
    }
    return look;
}

bool IsReportMark(ui::Mark mark)
{
    return mark == ui::Mark::Triangle || mark == ui::Mark::Disc || mark == ui::Mark::Diamond;
}

BoxF WithoutLeft(const BoxF& box, double width)
{
    return {box.left + width, box.top, box.width - width, box.height};
}

// A list button's sign stands before its text.
bool IsList(const Control& control)
{
    return control.Now().mark != ui::Mark::None || control.Style().ornament == Ornament::ListButton;
}

void PaintFace(Canvas& canvas, const BoxF& box, const ButtonLook& look, double radius)
{
    if (look.raised) {
        canvas.Rounded(box.Moved(0, 2), radius, Ink::Flat(look.edge));
    }
    const BoxF face = box.Moved(0, look.down);
    canvas.Rounded(face, radius, Ink::Shade(look.top, look.bottom));
    canvas.Frame(face, radius, 1, look.border);
    if (look.raised) {
        canvas.Fill({face.left + 4, face.top + 1, face.width - 8, 1}, look.light, 0.8);
    }
}

void PaintButton(Brush& brush, const Control& control, const ControlLight& light)
{
    const ButtonLook look = LookOf(brush, control, light);
    const BoxF box = control.Place();
    const BoxF face = box.Moved(0, look.down);
    if (control.Style().ornament == Ornament::RateButton) {
        PaintFace(brush.canvas, box, look, 4);
        const double x = face.MiddleX();
        const double y = face.MiddleY();
        brush.canvas.Fill({x - 5, y - 1.25, 10, 2.5}, look.text);
        if (control.Text() != "-") {
            brush.canvas.Fill({x - 1.25, y - 5, 2.5, 10}, look.text);
        }
        return;
    }
    if (control.Style().ornament == Ornament::ArrowButton) {
        PaintFace(brush.canvas, box, look, 4);
        PaintMark(brush, control.Now().mark, {face.MiddleX(), face.MiddleY()}, 1, look.text);
        return;
    }
    PaintFace(brush.canvas, box, look, 5);
    ui::TextStyle style = control.Style();
    if (IsList(control)) {
        PaintMark(brush, control.Now().mark, {face.left + 16, face.MiddleY()}, 1, look.text);
        style.align = ui::Align::Left;
    }
    PaintText(brush, TextPlace(control).Moved(0, look.down), control.Text(), style, look.text);
}

void PaintOption(Brush& brush, const Control& control, const ControlLight& light)
{
    const BoxF box = control.Place();
    const PointF middle{box.left + 15, box.MiddleY()};
    const bool enabled = control.Now().enabled;
    const ButtonLook& disabled = brush.ground.secret ? button::kDisabledSecret : button::kDisabled;
    brush.canvas.Disc(middle, 8.75, enabled ? look::kFieldLine : disabled.border);
    brush.canvas.Disc(middle, 7.25,
                      !enabled        ? disabled.top
                      : light.hovered ? button::kHover.light
                                      : look::kField);
    if (control.Now().chosen) {
        brush.canvas.Disc(middle, 4.5, enabled ? look::kStampRed : disabled.text);
    }
    PaintText(brush, TextPlace(control), control.Text(), control.Style(),
              enabled ? control.Now().fore : disabled.text);
}

void PaintPlate(Brush& brush, const BoxF& box)
{
    brush.canvas.Rounded(box.Moved(2, 2), 3, {look::kBlack, look::kBlack, 0.5, nullptr});
    brush.canvas.Rounded(box, 3, Ink::Flat(look::kPaper));
    brush.canvas.Frame(box, 3, 1, look::kInk);
}

void PaintValueBox(Brush& brush, const BoxF& box)
{
    brush.canvas.Rounded(box, 3, Ink::Flat(look::kField));
    brush.canvas.Frame(box, 3, 1, look::kSheetEdge);
}

// A number over ten boxes, as many of them filled. An opaque ground's colour fills them.
void PaintPips(Brush& brush, const Control& control)
{
    constexpr int kCount = 10;
    const BoxF box = control.Place();
    const Control::State& now = control.Now();
    int value = 0;
    std::from_chars(now.text.data(), now.text.data() + now.text.size(), value);
    PaintText(brush, TextPlace(control), now.text, control.Style(), now.fore);
    const ui::Color filled = now.opaque ? now.back : look::kTeal;
    for (int i = 0; i < kCount; ++i) {
        const BoxF pip{box.MiddleX() - 44 + i * 9, box.MiddleY() + 5, 7, 6};
        if (i < value) {
            brush.canvas.Fill(pip, filled);
        } else {
            brush.canvas.Fill(pip, Rgb(0x876508), 0.27);
        }
    }
}

constexpr double kDrawnOut = 10;  // the card under the pointer

// A card of the drawer's index: two corners cut, a hole, a printed rule, and dots towards its end.
void PaintCard(Canvas& canvas, const BoxF& card, ui::Color color)
{
    constexpr double kCut = 10;
    const PointF outline[] = {{card.left + kCut, card.top},      {card.Right(), card.top},
                              {card.Right(), card.Bottom()},     {card.left + kCut, card.Bottom()},
                              {card.left, card.Bottom() - kCut}, {card.left, card.top + kCut}};
    canvas.Polygon(outline, color);
}

void PaintCardPrint(Canvas& canvas, const BoxF& card)
{
    constexpr double kColumn = 4;
    constexpr int kColumns = 7;
    canvas.Disc({card.left + 11, card.MiddleY()}, 4, look::kBlack);
    canvas.Fill({card.left + 23, card.top, 1, card.height}, look::kHeading);
    for (int column = 0; column < kColumns; ++column) {
        const double x = card.Right() - kColumn * (kColumns - column) + 2;
        for (double y = card.top + (column % 2 == 0 ? 3 : 5); y < card.Bottom() - 1; y += kColumn) {
            canvas.Disc({x, y}, 0.5 + 0.2 * column, look::kOchre);
        }
    }
}

// Inverted when the screen's handler says so with the colours: black instead of a bright ground.
void PaintYellowKey(Brush& brush, const Control& control)
{
    const BoxF box = control.Place();
    const Control::State& now = control.Now();
    if (now.back == look::kBlack) {
        const BoxF out{box.left, box.top, box.width - kDrawnOut, box.height};
        PaintCard(brush.canvas, out, look::kYellow);
        PaintCard(brush.canvas, out.Grown(-1), now.back);
        brush.canvas.Disc({out.left + 11, out.MiddleY()}, 4, look::kYellow);
        brush.canvas.Fill({out.left + 20, out.top + 8, 6, out.height - 16}, look::kWhite);
    } else {
        const BoxF card{box.left + kDrawnOut, box.top, box.width - kDrawnOut, box.height};
        PaintCard(brush.canvas, card, now.back);
        PaintCardPrint(brush.canvas, card);
    }
    PaintText(brush, TextPlace(control), now.text, control.Style(), now.fore);
}

// A sign stands behind a number at the right, or before a text at the left.
void PaintLabelText(Brush& brush, const Control& control)
{
    const Control::State& now = control.Now();
    const BoxF box = control.Place();
    if (now.mark != ui::Mark::None) {
        const bool before = control.Style().align == ui::Align::Left;
        const double x = before ? box.left + 8 : box.Right() + (IsReportMark(now.mark) ? 15 : 13);
        PaintMark(brush, now.mark, {x, box.MiddleY()}, before ? 1 : 0.8, now.fore);
    }
    if (now.opaque && !now.text.empty()) {
        const TextLayout layout = LayOut(brush.letters, now.text, control.Style(), TextPlace(control));
        brush.canvas.Fill(layout.Bounds().Grown(3), now.back);
    }
    PaintText(brush, TextPlace(control), now.text, control.Style(), now.fore);
}

void PaintLabel(Brush& brush, const Control& control)
{
    switch (control.Style().ornament) {
    case Ornament::Pips:
        PaintPips(brush, control);
        return;
    case Ornament::YellowKey:
        PaintYellowKey(brush, control);
        return;
    case Ornament::Plate:
        PaintPlate(brush, control.Place());
        PaintText(brush, TextPlace(control), control.Text(), control.Style(), control.Now().fore);
        return;
    case Ornament::Message:
        PaintMessage(brush, control);
        return;
    case Ornament::Box:
        PaintValueBox(brush, control.Place());
        PaintText(brush, TextPlace(control), control.Text(), control.Style(), control.Now().fore);
        return;
    default:
        PaintLabelText(brush, control);
    }
}

// A legend's shape is the sign itself. A bar of the yellow forecast has slanted cuts, so that it differs from
// the red one not by colour alone.
void PaintShape(Brush& brush, const Control& control)
{
    constexpr double kStep = 10;
    const BoxF box = control.Place();
    if (control.Now().mark != ui::Mark::None) {
        PaintMark(brush, control.Now().mark, {box.MiddleX(), box.MiddleY()}, 1, control.Now().fore);
        return;
    }
    brush.canvas.Fill(box, control.Now().back);
    if (control.Now().back != look::kYellow) {
        return;
    }
    const auto clip = brush.canvas.Clipped(control.Place());
    for (double x = box.left + 4; x + 2 < box.Right(); x += kStep) {
        const PointF cut[] = {{x, box.top}, {x + 6, box.Bottom()}, {x + 8, box.Bottom()}, {x + 2, box.top}};
        brush.canvas.Polygon(cut, look::kSecret, 0.55);
    }
}

void PaintRingAround(Canvas& canvas, const BoxF& box, double radius)
{
    canvas.Frame(box.Grown(2), radius + 1, 2, look::kInk);
    canvas.Frame(box, radius, 2, look::kSun);
}

}  // namespace

BoxF TextPlace(const ui::Control& control)
{
    const BoxF box = control.Place();
    switch (control.GetKind()) {
    case Control::Kind::CommandButton:
        return IsList(control) ? BoxF(box.left + 32, box.top, box.width - 38, box.height) : box.Grown(-4);
    case Control::Kind::OptionButton:
        return WithoutLeft(box, 32);
    case Control::Kind::Label:
        break;
    default:
        return box.Grown(-4);
    }
    switch (control.Style().ornament) {
    case Ornament::Pips:
        return {box.left, box.MiddleY() - 19, box.width, 26};
    case Ornament::YellowKey:
        return {box.left + 36, box.top + 1, box.width - 68, box.height - 2};
    case Ornament::Plate:
    case Ornament::Box:
        return box.Grown(-3);
    default:
        return control.Now().mark != ui::Mark::None && control.Style().align == ui::Align::Left
                   ? WithoutLeft(box, 26)
                   : box;
    }
}

bool TextFits(Letters& letters, const ui::Control& control)
{
    return LayOut(letters, control.Text(), control.Style(), TextPlace(control)).fits;
}

void PaintRow(Brush& brush, const ui::Control& control)
{
    const BoxF row = control.Row().Empty() ? control.Place() : control.Row();
    brush.canvas.Fill(row, look::kSun);
    brush.canvas.Fill({row.left, row.top, 5, row.height}, look::kStampRed);
}

void PaintControl(Brush& brush, const ui::Control& control, const ControlLight& light, TextBoxView& boxes)
{
    switch (control.GetKind()) {
    case Control::Kind::Label:
        PaintLabel(brush, control);
        break;
    case Control::Kind::CommandButton:
        PaintButton(brush, control, light);
        break;
    case Control::Kind::OptionButton:
        PaintOption(brush, control, light);
        break;
    case Control::Kind::TextBox:
        boxes.Paint(brush, static_cast<const ui::TextBox&>(control));
        break;
    case Control::Kind::Picture:
        if (!control.Now().picture.empty()) {
            PaintPicture(brush, control.Place(), control.Now().picture, control.Text());
        }
        break;
    case Control::Kind::Shape:
        PaintShape(brush, control);
        break;
    case Control::Kind::Graph:
        PaintGraph(brush, static_cast<const ui::Graph&>(control));
        break;
    }
}

void PaintRing(Brush& brush, const ui::Control& control)
{
    const BoxF box = control.Place();
    switch (control.GetKind()) {
    case Control::Kind::CommandButton:  // and its lower edge
        PaintRingAround(brush.canvas, BoxF(box.left, box.top, box.width, box.height + 2).Grown(3), 8);
        break;
    case Control::Kind::TextBox:
        PaintRingAround(brush.canvas, box.Grown(2), 5);
        break;
    case Control::Kind::OptionButton:
        PaintRingAround(brush.canvas, box, 4);
        break;
    default:  // keys at the screen's edge have no room outside
        if (control.Style().ornament != Ornament::Row) {
            PaintRingAround(brush.canvas, box.Grown(-4), 3);
        }
    }
}

}  // namespace platform
