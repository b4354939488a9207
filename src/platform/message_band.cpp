#include "platform/message_band.h"

#include "platform/text_layout.h"
#include "ui/look/look.h"

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr double kBesideText = 36;  // the band's height beyond its lines
constexpr double kFoldedTop = 50;   // below the menu
constexpr double kBesideFolded = 12;
constexpr int kLongMessage = 3;  // lines
constexpr int kDimsBehindLong = 42;
constexpr int kDimsBehindShort = 25;

struct BandInk {
    ui::Color ground;
    ui::Color edge;
    double edgeWidth;
    ui::Color line;
};
constexpr double kGroundOpacity = 0.86;  // white on it has a contrast of 13 even over white
constexpr BandInk kNight{look::kSecret, look::kBrass, 2, ui::Rgb(0x4B3A17)};
constexpr BandInk kRevolt{ui::Rgb(0x2A0705), look::kSun, 3, ui::Rgb(0xB8261B)};

constexpr ui::TextStyle kFolded{.face = ui::Face::CaptionBold,
                                .align = ui::Align::Center,
                                .sizes = {{{18, 24}, {16, 21}, {15, 19}}},
                                .fore = look::kWhite,
                                .wrap = true};
constexpr ui::Rect kFoldedText{16, 50, 768, 96};

bool Silent(const ui::Control& message)
{
    return message.Text().find_first_not_of(' ') == std::string::npos;
}

// One line if it can be; the smallest type only if it must be.
TextLayout LayOutFolded(Letters& letters, const ui::Control& message)
{
    TextLayout layout;
    for (const ui::TextSize& size : kFolded.sizes) {
        ui::TextStyle style = kFolded;
        style.sizes = {size};
        layout = LayOut(letters, message.Text(), style, kFoldedText);
        if (layout.lines.size() == 1) {
            break;
        }
    }
    return layout;
}

int LineHeight(const ui::TextStyle& style, int size)
{
    const auto* const used = std::find_if(style.sizes.begin(), style.sizes.end(),
                                          [size](const ui::TextSize& each) { return each.size == size; });
    return used == style.sizes.end() ? size : used->line;
}

// Dots that grow toward the edge of the screen, where no text comes.
void PaintHalftone(Canvas& canvas, const BoxF& band)
{
    constexpr double kStep = 7;
    constexpr double kReach = 60;
    bool shifted = false;
    for (double y = band.top + 6; y < band.Bottom() - 6; y += kStep / 2) {
        for (double x = shifted ? kStep / 2 : 0; x < kReach; x += kStep) {
            const double radius = 2.2 - x / 27;
            if (radius > 0.4) {
                canvas.Disc({x, y}, radius, look::kHalftone);
                canvas.Disc({ui::kSpaceWidth - x, y}, radius, look::kHalftone);
            }
        }
        shifted = !shifted;
    }
}

void PaintBand(Brush& brush, const BoxF& band, bool withDots)
{
    const BandInk& ink = brush.ground.uprising ? kRevolt : kNight;
    Canvas& canvas = brush.canvas;
    canvas.Fill(band, ink.ground, kGroundOpacity);
    if (withDots && !brush.ground.uprising) {
        PaintHalftone(canvas, band);
    }
    canvas.Fill({band.left, band.top, band.width, ink.edgeWidth}, ink.edge);
    canvas.Fill({band.left, band.Bottom() - ink.edgeWidth, band.width, ink.edgeWidth}, ink.edge);
    if (withDots) {
        canvas.Fill({band.left, band.top + ink.edgeWidth + 2, band.width, 1}, ink.line);
        canvas.Fill({band.left, band.Bottom() - ink.edgeWidth - 3, band.width, 1}, ink.line);
    }
}

}  // namespace

BoxF MessagePlace(Letters& letters, const ui::Control& message)
{
    if (Silent(message)) {
        return {};
    }
    if (message.Now().folded) {
        const TextLayout layout = LayOutFolded(letters, message);
        const auto lines = static_cast<double>(layout.lines.size());
        return {0, kFoldedTop, ui::kSpaceWidth, lines * LineHeight(kFolded, layout.size) + kBesideFolded};
    }
    const TextLayout layout = LayOut(letters, message.Text(), message.Style(), message.Place());
    const double height =
        static_cast<double>(layout.lines.size()) * LineHeight(message.Style(), layout.size) + kBesideText;
    return {0, BoxF(message.Place()).MiddleY() - height / 2, ui::kSpaceWidth, height};
}

int MessageDims(Letters& letters, const ui::Control& message)
{
    if (Silent(message) || message.Now().folded) {
        return 0;
    }
    const TextLayout layout = LayOut(letters, message.Text(), message.Style(), message.Place());
    return layout.lines.size() >= kLongMessage ? kDimsBehindLong : kDimsBehindShort;
}

void PaintMessage(Brush& brush, const ui::Control& message)
{
    if (Silent(message)) {
        return;
    }
    const bool folded = message.Now().folded;
    const BoxF band = MessagePlace(brush.letters, message);
    PaintBand(brush, band, !folded);
    ui::TextStyle style = folded ? kFolded : message.Style();
    style.shadow = brush.ground.uprising;
    BoxF text = message.Place();
    if (folded) {
        style.sizes = {ui::TextSize{LayOutFolded(brush.letters, message).size, 0}};
        style.sizes[0].line = LineHeight(kFolded, style.sizes[0].size);
        text = {kFoldedText.left + 0.0, band.top, kFoldedText.width + 0.0, band.height};
    }
    PaintText(brush, text, message.Text(), style, message.Now().fore);
}

}  // namespace platform
