// Which display mode the game asks for, and the way there and back.
#pragma once

#include <SDL2/SDL_video.h>

#include <optional>

namespace platform {

class Guard;

// The mode of exactly 800 x 600 in 32 bits, if the display has it. (SDL's own search for the nearest mode
// silently gives a larger one.)
std::optional<SDL_DisplayMode> FindGameMode(int display);

// Where the window was, if we had to move it ourselves.
using WindowPlace = std::optional<SDL_Rect>;

// Full screen in the game's own mode if the display offers it, else scaled in the desktop's. The guard
// remembers the old mode only when it is really left.
void EnterFullScreen(SDL_Window& window, Guard& guard, WindowPlace& before);
void LeaveFullScreen(SDL_Window& window, Guard& guard, WindowPlace& before);
bool IsFullScreen(SDL_Window& window);

}  // namespace platform
