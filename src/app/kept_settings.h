// The player's settings, from their file and back into it.
#pragma once

#include "app/game.h"
#include "ui/toolkit/geometry.h"

// Carries out what is kept and keeps from now on what the player changes. What is wrong with the file is said on
// the error output and on the settings' sheet. Returns where the window was left.
ui::Rect UseSettings(Game& game);
