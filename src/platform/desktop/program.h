// The program in a window, from starting SDL to the end.
//
//     int main() { SdlHost host; Game game(host, ...); game.Start(); return Run(game.GetDesktop(), game.GetNarrator(), host, folder); }
//
// Without a display it says so in one line on standard error. Everything it changed on the player's machine
// is as it was when it returns; what happens on other ways out is the guard's business.
#pragma once

#include "files/program_folder.h"
#include "platform/desktop/sdl_host.h"
#include "ui/reading/narrator.h"
#include "ui/toolkit/desktop.h"

namespace platform {

// The exit status of the program.
int Run(ui::Desktop& desktop, reading::Narrator& narrator, SdlHost& host, const files::ProgramFolder& folder);

}  // namespace platform
