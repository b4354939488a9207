// How a text is set and what is printed around the controls, as plain data.
//
// Screens name a style for each control and list their decoration; the painter is the only one who turns
// either into pixels, and the tests measure texts with the same data. The game's own styles and colours
// are in ui/look.
#pragma once

#include "ui/toolkit/color.h"
#include "ui/toolkit/geometry.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace ui {

enum class Face : std::uint8_t {
    Heading,
    Caption,
    CaptionBold,
    Body,
    Typed,
    TypedLight,
    Tag,
    Print,
    PrintItalic
};
enum class Align : std::uint8_t { Left, Center, Right };

// A type size and the distance from line to line, in pixels of the picture space.
struct TextSize {
    int size = 0;
    int line = 0;
};

// What stands behind or instead of a control's plain text.
enum class Ornament : std::uint8_t {
    None,
    Plate,         // a paper plate with a shadow, as on the map
    Box,           // the white box of a value that the buttons beside it change
    Pips,          // a number as filled boxes out of ten
    ListButton,    // a button with its text at the left and a mark before it
    RateButton,    // a small square button whose sign is drawn as bars
    ArrowButton,   // a small square button with nothing but its sign
    DangerButton,  // a button whose deed cannot be undone
    YellowKey,     // a key of the options menu, inverted under the pointer
    Message,       // a band across the whole screen, over its scene
    Row,           // a table row that lights up under the pointer or the focus
};

struct TextStyle {
    Face face = Face::Caption;
    Align align = Align::Left;
    // Tried in order until the text fits its control; unused places are zero.
    std::array<TextSize, 3> sizes{TextSize{16, 26}};
    Color fore{};
    Ornament ornament = Ornament::None;
    bool wrap = false;      // lines break at blanks; otherwise one line, centred vertically
    bool top = false;       // a wrapped text starts at the top instead of standing in the middle
    bool balanced = false;  // wrapped lines of about equal length
    bool shadow = false;    // the same text in black behind it, for bright grounds
};

// A small sign beside a text, so that nothing is said by colour alone.
// Blank keeps a sign's room empty. The last four are a chronicle's: revolt, attempt, war, disaster.
enum class Mark : std::uint8_t {
    None,
    Up,
    Down,
    Star,
    Dash,
    Triangle,
    Disc,
    Diamond,
    Question,
    Blank,
    Flame,
    Sight,
    Sabres,
    Bolt
};

// One printed thing of a screen that is no control: it takes no click and never changes.
struct Decor {
    enum class Kind : std::uint8_t {
        PaperSheet,   // cream sheet on a second sheet; with a text: a red band with that heading
        SecretSheet,  // near-black sheet in a brass frame; with a text: a dark band
        PosterSheet,  // ink-black sheet in a cream line, for revolts
        Band,         // the band alone, for screens whose heading is a control
        SecretBand,
        FootStrip,  // the tinted strip at a sheet's foot
        TornPaper,  // a slip of paper with a torn upper edge, lying on the desk
        Note,       // a ruled note under a paper clip
        Picture,    // a picture file, named by text
        Caption,    // text in the style of captions
        Stamp,      // text as a rubber stamp, turned by angle
        SecretStamp,
        Stripe,      // the ground of every second table row
        Rule,        // 2 px line; its colour follows the sheet's
        DoubleRule,  // two thin lines below a total
        Hairline,    // 1 px line
        Seal,        // the emblem on a red disc
        Star,        // five points, in color
        Border,      // a red line and a fine one inside it
        Fill,        // a plain rectangle in color
    };

    Kind kind = Kind::Fill;
    Rect rect{};
    std::string_view text{};
    int angle = 0;  // degrees, counter-clockwise
    Color color{};  // Fill, Star, Rule and Hairline
};

}  // namespace ui
