// Draws the screen as a window of any size would show it. It needs no display.
#pragma once

#include "files/program_folder.h"
#include "png/png.h"
#include "ui/toolkit/desktop.h"

namespace console {

// Throws std::runtime_error when there is no memory for the picture.
png::Picture Shoot(const ui::Desktop& desktop, const files::ProgramFolder& folder,
                   int width = ui::kSpaceWidth, int height = ui::kSpaceHeight);

}  // namespace console
