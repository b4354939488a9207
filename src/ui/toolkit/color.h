// An opaque colour. Rgb(0xF3E7C9) reads like the palette it comes from.
#pragma once

#include <cstdint>

namespace ui {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;

    constexpr bool operator==(const Color&) const = default;
};

constexpr Color Rgb(std::uint32_t rrggbb)
{
    return {static_cast<std::uint8_t>(rrggbb >> 16U), static_cast<std::uint8_t>(rrggbb >> 8U),
            static_cast<std::uint8_t>(rrggbb)};
}

}  // namespace ui
