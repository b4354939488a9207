#include "platform/viewport.h"

#include <algorithm>

namespace platform {

Viewport Viewport::Fit(int width, int height)
{
    Viewport viewport;
    viewport.scale = std::min(static_cast<double>(std::max(width, 1)) / ui::kSpaceWidth,
                              static_cast<double>(std::max(height, 1)) / ui::kSpaceHeight);
    viewport.place.w = static_cast<int>(std::lround(ui::kSpaceWidth * viewport.scale));
    viewport.place.h = static_cast<int>(std::lround(ui::kSpaceHeight * viewport.scale));
    viewport.place.x = (width - viewport.place.w) / 2;
    viewport.place.y = (height - viewport.place.h) / 2;
    return viewport;
}

int Viewport::Thickness(double width) const
{
    return std::max(1, static_cast<int>(std::lround(width * scale)));
}

SDL_Rect Viewport::Snap(const BoxF& box) const
{
    // Lines of one width are equally thick wherever they lie; larger boxes end where others begin.
    constexpr double kLine = 4;
    const int left = X(box.left);
    const int top = Y(box.top);
    return {left, top, box.width < kLine ? Thickness(box.width) : X(box.Right()) - left,
            box.height < kLine ? Thickness(box.height) : Y(box.Bottom()) - top};
}

SDL_Rect Viewport::Cover(const ui::Rect& rect) const
{
    const int left = place.x + static_cast<int>(std::floor(rect.left * scale));
    const int top = place.y + static_cast<int>(std::floor(rect.top * scale));
    const int right = place.x + static_cast<int>(std::ceil(rect.Right() * scale));
    const int bottom = place.y + static_cast<int>(std::ceil(rect.Bottom() * scale));
    return {left, top, right - left, bottom - top};
}

ui::Point Viewport::ToPicture(int x, int y) const
{
    return {static_cast<int>(std::floor((x - place.x + 0.5) / scale)),
            static_cast<int>(std::floor((y - place.y + 0.5) / scale))};
}

bool Viewport::Contains(int x, int y) const
{
    const SDL_Point point{x, y};
    return SDL_PointInRect(&point, &place) == SDL_TRUE;
}

bool Viewport::operator==(const Viewport& other) const
{
    return place.x == other.place.x && place.y == other.place.y && place.w == other.place.w &&
           place.h == other.place.h;
}

}  // namespace platform
