// The poster of an uprising: a picture above ink-black ground, the heading in red, two ways out.
//
//     ui::Picture Image1{*this, "Image1", kPosterPicture, "Revolution", look::kPicture,
//         {.picture = "images/revolution.bmp"}};
//
// The cream line of the sheet runs around the picture, not over it.
#pragma once

#include "ui/look/look.h"
#include "ui/toolkit/form.h"

#include <array>

namespace screens {

inline constexpr ui::Rect kPosterSheet{87, 75, 626, 492};
inline constexpr ui::Rect kPosterPicture{90, 78, 620, 250};
inline constexpr std::array kPosterDecor{
    ui::Decor{ui::Decor::Kind::PosterSheet, kPosterSheet},
    ui::Decor{.kind = ui::Decor::Kind::Fill, .rect = {90, 328, 620, 4}, .color = look::kOchre},
};

inline constexpr ui::Rect kPosterLeftButton{130, 502, 250, 44};
inline constexpr ui::Rect kPosterRightButton{420, 502, 250, 44};

}  // namespace screens
