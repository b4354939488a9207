// What other X programs decide about the window: how large it is, and whether it is at all.
#pragma once

#include <SDL2/SDL_video.h>

namespace platform {

// False only on a bare X server (a kiosk, a test), where nobody makes a window fill the screen for us.
bool HasWindowManager(SDL_Window& window);
// A window that another program destroys ends the game like one that is closed. SDL tells only of those
// who ask politely; the game would go on unseen.
void QuitWhenDestroyed();

}  // namespace platform
