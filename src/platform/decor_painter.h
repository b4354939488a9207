// Paints what is printed around a screen's controls: sheets, bands, rules, notes and stamps.
#pragma once

#include "platform/brush.h"
#include "ui/toolkit/form.h"

#include <string>

namespace platform {

// Files of the decoration itself, apart from those that a screen names.
inline constexpr std::string_view kPaperPicture = "images/paper.bmp";
inline constexpr std::string_view kEmblemPicture = "images/emblem.bmp";

// Dark when one of the screen's sheets is, or when it has none.
bool IsSecret(const ui::Form& form);
// Whether the screen's decoration shows this picture file.
bool DecorShows(const ui::Form& form, std::string_view file);

void PaintDecor(Brush& brush, const ui::Form& form);

}  // namespace platform
