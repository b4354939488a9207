// The faces of a button, one for each state: what the painter paints and the tests of contrast measure.
#pragma once

#include "ui/toolkit/color.h"

namespace platform {

struct ButtonLook {
    ui::Color top, bottom;  // the face's shade
    ui::Color border;
    ui::Color text;
    ui::Color light;  // the line along the upper edge
    ui::Color edge;   // what shows below the face
    bool raised;      // has light and edge
    double down;      // how far it is pressed in
};

namespace button {

using ui::Rgb;

inline constexpr ButtonLook kNormal{Rgb(0x2C6466), Rgb(0x1A4345), Rgb(0x0A2224), Rgb(0xFFF3D6),
                                    Rgb(0x6FA59D), Rgb(0x071314), true,          0};
inline constexpr ButtonLook kDanger{Rgb(0xBE2C22), Rgb(0x8E1B14), Rgb(0x3F0B08), Rgb(0xFFF3D6),
                                    Rgb(0xE08A7C), Rgb(0x2A0705), true,          0};
inline constexpr ButtonLook kHover{Rgb(0xF4C24F), Rgb(0xD8942A), Rgb(0x5A3A0A), Rgb(0x14110F),
                                   Rgb(0xFFE9AE), Rgb(0x071314), true,          0};
inline constexpr ButtonLook kPressed{
    Rgb(0x0F2E30), Rgb(0x0F2E30), Rgb(0x061516), Rgb(0xF2C14E), {}, {}, false, 2};
inline constexpr ButtonLook kDisabled{
    Rgb(0xDCCDA3), Rgb(0xDCCDA3), Rgb(0xA8925F), Rgb(0x5E4F2C), {}, {}, false, 0};
inline constexpr ButtonLook kDisabledSecret{
    Rgb(0x1C2522), Rgb(0x1C2522), Rgb(0x35433E), Rgb(0x93A097), {}, {}, false, 0};

}  // namespace button
}  // namespace platform
