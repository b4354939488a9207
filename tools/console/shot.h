// Draws the screen as the window would show it at its own size, 800 x 600. It needs no display.
#pragma once

#include "files/program_folder.h"
#include "png/png.h"
#include "ui/toolkit/desktop.h"

namespace console {

// Throws std::runtime_error when there is no memory for the picture.
png::Picture Shoot(const ui::Desktop& desktop, const files::ProgramFolder& folder);

}  // namespace console
