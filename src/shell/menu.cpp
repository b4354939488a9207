#include "shell/menu.h"

#include "core/banner.h"

#include <string>

namespace shell {

namespace {

std::string MenuPicture(int item, bool highlighted)
{
    return "images/" + std::to_string(item) + (highlighted ? "a.bmp" : "b.bmp");
}

}  // namespace

Menu::Menu(screens::Screens& screens, media::Sound& sound) : screens_(screens), sound_(sound)
{
    screens.frmMain.Label5.OnClick([this](int index) { Label5_Click(index); });
    screens.frmMain.Label5.OnHover([this](int index) { Label5_MouseMove(index); });
}

void Menu::Label5_MouseMove(int index)
{
    for (int i = 0; i < screens::kMenuItems; ++i) {
        screens_.frmMain.Label5[i].SetPicture(MenuPicture(i, i == index));
    }
}

void Menu::CloseAll()
{
    screens_.frmTaxes.Hide();
    screens_.frmPolice.Hide();
    screens_.frmOptions.Hide();
    screens_.frmBank.Hide();
    screens_.frmActions.Hide();
    screens_.frmShow.Hide();
    screens_.frmPolc.Hide();
    screens_.frmArmyC.Hide();
    core::ClearBanner(screens_.frmMonthBanner);
    screens_.frmArmy.Hide();
    screens_.frmSave.Unload();
    screens_.frmLoad.Unload();
    screens_.frmHistory.Hide();
    screens_.frmWAR.Hide();
    screens_.frmGameLoaded.Hide();
    screens_.frmAIN.Unload();
    screens_.frmTop102.Hide();
    screens_.frmPrRev.Hide();
    screens_.frmNewspaper.Hide();
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
