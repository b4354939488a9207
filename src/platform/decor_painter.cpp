#include "platform/decor_painter.h"

#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace platform {

namespace {

using ui::Decor;
using ui::Rgb;
using Kind = ui::Decor::Kind;

constexpr double kBandHeight = 38;
constexpr double kEmblem = 34;
// How far a sheet's shadow, its second sheet or a note's clip may reach beyond its place.
constexpr int kReach = 20;
constexpr ui::TextStyle kNoteHeading{
    .face = ui::Face::Heading, .sizes = {{{22, 26}, {19, 23}}}, .fore = look::kHeading};

const Decor* Find(const ui::Form& form, Kind kind)
{
    const auto decor = form.GetDesign().decor;
    const auto it =
        std::find_if(decor.begin(), decor.end(), [kind](const Decor& each) { return each.kind == kind; });
    return it == decor.end() ? nullptr : &*it;
}

void PaintShadow(Brush& brush, const BoxF& box)
{
    if (brush.ground.uprising) {
        brush.canvas.Fill(box.Moved(8, 8), Rgb(0x6E0000));
    }
}

// Without its file there is no emblem; nothing takes its place.
void PaintEmblem(Brush& brush, const BoxF& box)
{
    const SDL_Rect pixels = brush.canvas.View().Snap(box);
    if (SDL_Surface* picture = brush.pictures.Get(kEmblemPicture, pixels.w, pixels.h)) {
        brush.canvas.Picture(*picture, pixels.x, pixels.y);
    }
}

void PaintBandTitle(Brush& brush, const BoxF& band, std::string_view title, double lower)
{
    const BoxF room{band.left + 16, band.top + lower, band.width - 16 - 52, band.height};
    PaintText(brush, room, title, look::kBandTitle, look::kBandText);
    const double emblem = std::min(kEmblem, band.height - 4);
    PaintEmblem(brush,
                {band.Right() - 10 - emblem, band.top + lower + (band.height - emblem) / 2, emblem, emblem});
}

// The red band at a sheet's top, whose corners are the sheet's.
void PaintBand(Brush& brush, const BoxF& band, std::string_view title)
{
    Canvas& canvas = brush.canvas;
    {
        const auto clip = canvas.Clipped(canvas.View().Snap(band));
        const BoxF longer{band.left, band.top, band.width, band.height + 8};
        canvas.Rounded(longer, 3, Ink::Shade(look::kStampRed, Rgb(0x9A1E15)));
        canvas.Frame(longer, 3, 1, look::kFieldLine);
    }
    canvas.Fill({band.left + 1, band.Bottom(), band.width - 2, 2}, look::kOchre);
    canvas.Fill({band.left + 1, band.Bottom() + 3, band.width - 2, 1}, look::kHeading);
    PaintBandTitle(brush, band, title, 0);
}

void PaintSecretBand(Brush& brush, const BoxF& band, std::string_view title)
{
    brush.canvas.Fill({band.left + 2, band.top + 2, band.width - 4, band.height - 2},
                      Ink::Shade(Rgb(0x18474A), Rgb(0x103336)));
    brush.canvas.Fill({band.left, band.Bottom(), band.width, 2}, look::kBrass);
    PaintBandTitle(brush, band, title, 1);
}

void PaintPaperSheet(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    Canvas& canvas = brush.canvas;
    PaintShadow(brush, box);
    canvas.Rounded(box.Moved(5, 5), 3, Ink::Flat(look::kSheetEdge));
    canvas.Frame(box.Moved(5, 5), 3, 1, Rgb(0x5E4E2B));
    const SDL_Rect& place = canvas.View().place;
    canvas.Rounded(box, 3, Ink::Texture(brush.pictures.Get(kPaperPicture, place.w, place.h), look::kPaper));
    canvas.Frame(box, 3, 1, look::kFieldLine);
    if (!decor.text.empty()) {
        PaintBand(brush, {box.left, box.top, box.width, kBandHeight}, decor.text);
    }
}

void PaintSecretSheet(Brush& brush, const ui::Form& form, const Decor& decor, const BoxF& box)
{
    Canvas& canvas = brush.canvas;
    PaintShadow(brush, box);
    canvas.Rounded(box, 3, Ink::Flat(look::kBrass));
    canvas.Rounded(box.Grown(-2), 2, Ink::Flat(look::kSecret));
    double band = 0;
    if (!decor.text.empty()) {
        band = kBandHeight;
        PaintSecretBand(brush, {box.left, box.top, box.width, band}, decor.text);
    } else if (const Decor* own = Find(form, Kind::SecretBand)) {
        band = own->rect.height;
    }
    canvas.Frame({box.left + 5, box.top + band + 5, box.width - 10, box.height - band - 10}, 1, 1,
                 Rgb(0x4B3A17));
}

void PaintPosterSheet(Brush& brush, const ui::Form&, const Decor&, const BoxF& box)
{
    PaintShadow(brush, box);
    brush.canvas.Fill(box.Grown(3), look::kInk);
    brush.canvas.Frame(box, 0, 3, look::kPaper);
}

void PaintFootStrip(Brush& brush, const ui::Form&, const Decor&, const BoxF& box)
{
    brush.canvas.Fill(box, look::kFoot);
    brush.canvas.Fill({box.left, box.top, box.width, 1}, look::kSheetEdge);
}

// A bent wire: two straight legs joined by half circles.
std::vector<PointF> PaperClip(PointF start)
{
    std::vector<PointF> wire{start};
    double x = start.x;
    double y = start.y + 34;
    const auto bend = [&](double radius, double side) {
        wire.push_back({x, y});
        const double middle = x + side * radius;
        for (int i = 1; i <= 12; ++i) {
            const double angle = std::numbers::pi * i / 12;
            wire.push_back({middle - side * radius * std::cos(angle), y + side * radius * std::sin(angle)});
        }
        x = middle + side * radius;
    };
    bend(7, 1);
    y -= 38;
    bend(10, -1);
    wire.push_back({x, y + 40});
    return wire;
}

void PaintNote(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    constexpr double kFirstLine = 74;
    constexpr double kLine = 24;
    constexpr double kFoot = 10;  // free of lines
    Canvas& canvas = brush.canvas;
    // Only what shows beside the note, which lies a little askew on the sheet.
    const PointF shadow[] = {{box.Right() - 1, box.top + 1},      {box.Right() + 3, box.top + 1},
                             {box.Right() + 7, box.Bottom() + 1}, {box.left + 7, box.Bottom() + 5},
                             {box.left + 6, box.Bottom() - 1},    {box.Right() - 1, box.Bottom() - 1}};
    canvas.Polygon(shadow, look::kSheetEdge);
    canvas.Fill(box, Rgb(0xFFF9E6));
    canvas.Frame(box, 0, 1, look::kSheetEdge);
    for (double y = kFirstLine; y <= box.height - kFoot; y += kLine) {
        canvas.Fill({box.left + 14, box.top + y, box.width - 28, 1}, Rgb(0xD7C79C));
    }
    PaintText(brush, {box.left + 16, box.top + 18, box.width - 70, 28}, decor.text, kNoteHeading,
              kNoteHeading.fore);
    canvas.Line(PaperClip({box.Right() - 34, box.top + 2}), 2.6, Rgb(0x6A7072));
}

// The upper edge has teeth where it was torn off; the shadow lies on the desk.
void PaintTornPaper(Brush& brush, const ui::Form&, const Decor&, const BoxF& box)
{
    constexpr double kTooth = 8;
    constexpr double kDepth = 3;
    std::vector<PointF> outline{{box.left, box.Bottom()}};
    for (double x = box.left; x < box.Right(); x += kTooth) {
        outline.push_back({x, box.top + kDepth});
        outline.push_back({std::min(x + kTooth / 2, box.Right()), box.top});
    }
    outline.push_back({box.Right(), box.top + kDepth});
    outline.push_back({box.Right(), box.Bottom()});
    brush.canvas.Fill(box.Moved(7, 8), look::kBlack, 0.45);
    brush.canvas.Polygon(outline, Rgb(0xFBF2DC));
    brush.canvas.Fill({box.left, box.Bottom() - 1, box.width, 1}, look::kSheetEdge);
    brush.canvas.Line(PaperClip({box.Right() - 48, box.top - 6}), 2.6, Rgb(0x6A7072));
}

void PaintPictureDecor(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    PaintPicture(brush, box, decor.text, decor.text);
}

void PaintCaption(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    PaintText(brush, box, decor.text, look::kCaption,
              brush.ground.secret ? look::kSecretText : look::kCaption.fore);
}

void PaintStamp(Brush& brush, const Decor& decor, const BoxF& box, ui::Color color)
{
    const int size = std::max(13, static_cast<int>(std::lround(box.height / 1.02)));
    const Type type{ui::Face::Heading, size, brush.canvas.View().scale};
    const double width = brush.letters.Width(decor.text, type) / type.scale + 26;
    const BoxF frame{box.MiddleX() - width / 2, box.top, width, box.height};
    brush.canvas.TurnedFrame(frame.Grown(1.5), 5, 3, decor.angle, color);
    brush.canvas.TurnedFrame(frame.Grown(-3.5), 2, 1, decor.angle, color);
    const Mask& mask = brush.letters.Render(decor.text, type);
    const PointF pivot{mask.width / 2.0, mask.baseline - 0.355 * size * type.scale};
    brush.canvas.TurnedLetters(mask, pivot, {box.MiddleX(), box.MiddleY()}, decor.angle, color);
}

// A colour that a row of decoration leaves out is the sheet's.
ui::Color Or(ui::Color own, const Brush& brush, ui::Color onPaper, ui::Color onSecret)
{
    return own != ui::Color{} ? own : brush.ground.secret ? onSecret : onPaper;
}

// Lines may be written down without their thickness.
BoxF AtLeast(const BoxF& box, double thickness)
{
    return {box.left, box.top, box.width > 0 ? box.width : thickness,
            box.height > 0 ? box.height : thickness};
}

void PaintRule(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    brush.canvas.Fill(AtLeast(box, 2), Or(decor.color, brush, look::kInk, look::kBrass));
}

void PaintDoubleRule(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    const ui::Color color = Or(decor.color, brush, look::kInk, look::kBrass);
    brush.canvas.Fill({box.left, box.top, box.width, 1}, color);
    brush.canvas.Fill({box.left, box.top + 3, box.width, 1}, color);
}

void PaintHairline(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    brush.canvas.Fill(AtLeast(box, 1), Or(decor.color, brush, look::kRule, look::kSecretHairline));
}

void PaintSeal(Brush& brush, const ui::Form&, const Decor&, const BoxF& box)
{
    brush.canvas.Disc({box.MiddleX(), box.MiddleY()}, box.width / 2 - 1, look::kStampRed);
    PaintEmblem(brush, box);
}

void PaintStarDecor(Brush& brush, const ui::Form&, const Decor& decor, const BoxF& box)
{
    PaintStar(brush.canvas, {box.MiddleX(), box.MiddleY()}, box.width / 2, decor.color);
}

void PaintBorder(Brush& brush, const ui::Form&, const Decor&, const BoxF& box)
{
    brush.canvas.Frame(box, 2, 1.5, look::kStampRed);
    brush.canvas.Frame(box.Grown(-4), 1, 1, look::kRule);
}

// In the order of ui::Decor::Kind.
using Paint = void (*)(Brush&, const ui::Form&, const Decor&, const BoxF&);
constexpr Paint kPaints[] = {
    PaintPaperSheet,
    PaintSecretSheet,
    PaintPosterSheet,
    [](Brush& b, const ui::Form&, const Decor& d, const BoxF& box) { PaintBand(b, box, d.text); },
    [](Brush& b, const ui::Form&, const Decor& d, const BoxF& box) { PaintSecretBand(b, box, d.text); },
    PaintFootStrip,
    PaintTornPaper,
    PaintNote,
    PaintPictureDecor,
    PaintCaption,
    [](Brush& b, const ui::Form&, const Decor& d, const BoxF& box) {
        PaintStamp(b, d, box, look::kStampRed);
    },
    [](Brush& b, const ui::Form&, const Decor& d, const BoxF& box) {
        PaintStamp(b, d, box, look::kSecretStamp);
    },
    [](Brush& b, const ui::Form&, const Decor&, const BoxF& box) { b.canvas.Fill(box, look::kStripe, 0.75); },
    PaintRule,
    PaintDoubleRule,
    PaintHairline,
    PaintSeal,
    PaintStarDecor,
    PaintBorder,
    [](Brush& b, const ui::Form&, const Decor& d, const BoxF& box) { b.canvas.Fill(box, d.color); },
};
static_assert(std::size(kPaints) == static_cast<std::size_t>(Kind::Fill) + 1);

}  // namespace

bool IsSecret(const ui::Form& form)
{
    const auto decor = form.GetDesign().decor;
    return std::none_of(decor.begin(), decor.end(), [](const Decor& each) {
        return each.kind == Kind::PaperSheet || each.kind == Kind::TornPaper;
    });
}

bool DecorShows(const ui::Form& form, std::string_view file)
{
    const auto decor = form.GetDesign().decor;
    return std::any_of(decor.begin(), decor.end(), [file](const Decor& each) {
        return (each.kind == Kind::Picture && each.text == file) ||
               (each.kind == Kind::PaperSheet && file == kPaperPicture);
    });
}

void PaintDecor(Brush& brush, const ui::Form& form)
{
    for (const Decor& decor : form.GetDesign().decor) {
        // A sheet without a place of its own fills its screen's.
        const ui::Rect& rect = decor.rect == ui::Rect{} ? form.Place() : decor.rect;
        if (brush.canvas.Touches(rect.Grown(kReach + rect.width / 8))) {
            kPaints[static_cast<std::size_t>(decor.kind)](brush, form, decor, rect);
        }
    }
}

}  // namespace platform
