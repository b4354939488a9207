// The command menu: six picture buttons along the top. Each command first closes whatever is open.
#pragma once

#include "media/cues.h"
#include "ui/screens/frm_main.h"
#include "ui/screens/frm_month_banner.h"

#include <array>
#include <functional>
#include <vector>

namespace shell {

class Menu {
public:
    // What the menu may have opened, and what the month left behind: hidden, or unloaded where a screen begins
    // afresh each time.
    struct Leftover {
        ui::Form& form;
        enum class Goes { Hidden, Unloaded } goes = Goes::Hidden;
    };
    Menu(screens::FrmMain& main, screens::FrmMonthBanner& banner, std::vector<Leftover> leftovers,
         media::Sound& sound);

    // What each item does; an item without a command only closes what is open.
    std::array<std::function<void()>, screens::kMenuItems> commands;

    void Label5_Click(int index);
    void Label5_MouseMove(int index);
    void CloseAll();

private:
    screens::FrmMain& main_;
    screens::FrmMonthBanner& banner_;
    std::vector<Leftover> leftovers_;
    media::Sound& sound_;
};

}  // namespace shell
