#include "shell/menu.h"

#include "month/banner.h"

#include <algorithm>
#include <string>
#include <utility>

namespace shell {

namespace {

void PutAway(const Menu::Leftover& leftover)
{
    if (leftover.goes == Menu::Leftover::Goes::Unloaded) {
        leftover.form.Unload();
    } else {
        leftover.form.Hide();
    }
}

std::string MenuPicture(int item, bool highlighted)
{
    return "images/" + std::to_string(item) + (highlighted ? "a.bmp" : "b.bmp");
}

}  // namespace

Menu::Menu(screens::FrmMain& main, screens::FrmMonthBanner& banner, std::vector<Leftover> leftovers,
           media::Sound& sound)
    : main_(main), banner_(banner), leftovers_(std::move(leftovers)), sound_(sound)
{
    main.Label5.OnClick([this](int index) { Label5_Click(index); });
    main.Label5.OnHover([this](int index) { Label5_MouseMove(index); });
}

void Menu::Label5_MouseMove(int index)
{
    for (int i = 0; i < screens::kMenuItems; ++i) {
        main_.Label5[i].SetPicture(MenuPicture(i, i == index));
    }
}

void Menu::CloseAll()
{
    month::ClearBanner(banner_);
    for (const Leftover& leftover : leftovers_) {
        PutAway(leftover);
    }
}

bool Menu::Leave(std::span<ui::Form* const> shown)
{
    const auto row = [this](const ui::Form* form) {
        return std::find_if(leftovers_.begin(), leftovers_.end(), [form](const Leftover& leftover) {
            return &leftover.form == form && !leftover.waits;
        });
    };
    const auto front = std::find_if(shown.rbegin(), shown.rend(),
                                    [&](const ui::Form* form) { return row(form) != leftovers_.end(); });
    if (front == shown.rend()) {
        return false;
    }
    sound_.SoundClick();
    PutAway(*row(*front));
    return true;
}

ui::Control& Menu::Neighbour(const ui::Control* focus, bool forward)
{
    int at = forward ? screens::kMenuItems - 1 : 0;  // nowhere on the menu: to its first or last item
    for (int i = 0; i < screens::kMenuItems; ++i) {
        at = &main_.Label5[i] == focus ? i : at;
    }
    return main_.Label5[(at + (forward ? 1 : screens::kMenuItems - 1)) % screens::kMenuItems];
}

void Menu::Label5_Click(int index)
{
    sound_.SoundClick();
    CloseAll();
    if (const std::function<void()>& command = commands.at(static_cast<std::size_t>(index))) {
        command();
    }
}

}  // namespace shell
