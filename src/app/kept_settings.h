// The player's settings, from their file and back into it.
#pragma once

#include "app/game.h"
#include "office/settings.h"
#include "ui/toolkit/geometry.h"

#include <functional>

// Carries out what is kept and keeps from now on what the player changes. What is wrong with the file is said on
// the error output and on the settings' sheet. What the file does not tell is as in `delivered`; `onWritten` is called
// whenever it has been replaced. Returns where the window was left.
ui::Rect UseSettings(Game& game, const office::Settings& delivered = {},
                     std::function<void()> onWritten = {});
