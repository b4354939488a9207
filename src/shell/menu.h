// The command menu: six picture buttons along the top. Each command first closes whatever is open.
#pragma once

#include "media/cues.h"
#include "ui/screens/screens.h"

#include <array>
#include <functional>

namespace shell {

class Menu {
public:
    Menu(screens::Screens& screens, media::Sound& sound);

    // What each item does; an item without a command only closes what is open.
    std::array<std::function<void()>, screens::kMenuItems> commands;

    void Label5_Click(int index);
    void Label5_MouseMove(int index);
    // Hides, and unloads where a screen begins afresh each time, everything the menu may have opened.
    void CloseAll();

private:
    screens::Screens& screens_;
    media::Sound& sound_;
};

}  // namespace shell
