#include "shell/menu.h"

#include "month/banner.h"

#include <string>
#include <utility>

namespace shell {

namespace {

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
        if (leftover.goes == Leftover::Goes::Unloaded) {
            leftover.form.Unload();
        } else {
            leftover.form.Hide();
        }
    }
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
