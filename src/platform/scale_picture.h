// Scales a picture smoothly in both directions; edges of transparent pictures get no dark fringe.
#pragma once

#include <SDL2/SDL_surface.h>

namespace platform {

// Both surfaces have 32 bits a pixel and the same format. `to` is overwritten.
void ScalePicture(const SDL_Surface& from, SDL_Surface& to);

}  // namespace platform
