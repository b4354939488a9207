#include "shell/display.h"

namespace shell {

void Display::SwitchDisplayMode()
{
    if (state_.DisplayModeSet != 0) {
        return;
    }
    host_.SwitchDisplayMode();
    state_.DisplayModeSet = 1;
}

void Display::RestoreDisplayMode()
{
    host_.RestoreDisplayMode();
}

}  // namespace shell
