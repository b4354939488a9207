#include "shell/display.h"

#include <utility>

namespace shell {

void Display::SwitchDisplayMode()
{
    if (state_.DisplayModeSet != 0) {
        return;
    }
    if (fullScreen_) {
        host_.SwitchDisplayMode();
    }
    state_.DisplayModeSet = 1;
}

void Display::Choose(bool fullScreen)
{
    if (std::exchange(fullScreen_, fullScreen) == fullScreen || state_.DisplayModeSet == 0) {
        return;
    }
    fullScreen ? host_.SwitchDisplayMode() : host_.RestoreDisplayMode();
}

void Display::RestoreDisplayMode()
{
    host_.RestoreDisplayMode();
}

}  // namespace shell
