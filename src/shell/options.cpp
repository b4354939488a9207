#include "shell/options.h"

#include "persist/hall_of_fame.h"
#include "shell/figures.h"

namespace shell {

Options::Options(core::GameState& state, Screens screens, media::Sound& sound, media::Host& host,
                 const core::NumberFormat& format, Display& display, Manual& manual, SavedGames& savedGames,
                 HallScreen& hall)
    : state_(state)
    , screens_(screens)
    , sound_(sound)
    , host_(host)
    , format_(format)
    , display_(display)
    , manual_(manual)
    , savedGames_(savedGames)
    , hall_(hall)
{
    screens.frmOptions.onLoad = [this] { NameHistory(); };
    screens.frmOptions.Label5.OnClick([this](int index) { Label5_Click(index); });
    screens.frmOptions.Label5.OnHover([this](int index) { Label5_MouseMove(index); });
    screens.frmOptions.lblSettings.onClick = [this] {
        sound_.SoundClick();
        screens_.frmOptions.Hide();
        settings();
    };
    screens.frmOptions.lblSettings.onHover = [this] {
        Label5_MouseMove(screens::kOptionItems);
        LightSettings(true);
    };
}

void Options::Open()
{
    screens_.frmOptions.Label1.SetText("");
    screens_.frmOptions.Show();
}

void Options::NameHistory()
{
    if (!state_.PlayerName.empty()) {
        screens_.frmOptions.Label5[screens::kOptionHistory].SetText(state_.PlayerName);
    }
}

void Options::LightSettings(bool lit)
{
    screens_.frmOptions.lblSettings.SetBack(lit ? look::kBlack : look::kYellow);
    screens_.frmOptions.lblSettings.SetFore(lit ? look::kWhite : look::kBlack);
}

void Options::Label5_MouseMove(int index)
{
    LightSettings(false);
    for (int i = 0; i < screens::kOptionItems; ++i) {
        screens_.frmOptions.Label5[i].SetBack(i == index ? look::kBlack : look::kYellow);
        screens_.frmOptions.Label5[i].SetFore(i == index ? look::kWhite : look::kBlack);
    }
}

void Options::Label5_Click(int index)
{
    sound_.SoundClick();
    switch (index) {
    case screens::kOptionHelp:
        screens_.frmOptions.Label1.SetText(manual_.Open());
        return;
    case screens::kOptionQuit:
        display_.RestoreDisplayMode();
        host_.EndProgram();
        return;
    default:
        screens_.frmOptions.Hide();
    }
    switch (index) {
    case screens::kOptionRestart:
        state_.HallShown = 1;
        hall_.GRestart();
        return;
    case screens::kOptionAbout:
        screens_.frmAbout.ShowModal();
        return;
    case screens::kOptionHistory:
        ShowHistory();
        return;
    case screens::kOptionTopTen:
        hall_.See();
        return;
    case screens::kOptionSave:
        savedGames_.ProSave();
        return;
    default:
        savedGames_.ProLoad();
    }
}

// The score so far, not rounded before it is shown.
void Options::ShowHistory()
{
    const persist::HallEntry entry = persist::EntryOf(state_);
    const double score = persist::LevelFactor(entry.level) * static_cast<double>(persist::PlainScore(entry));
    ShowFigures(screens_.frmHistory, state_, format_, persist::ShownScore(score, format_));
    screens_.frmHistory.Show();
}

}  // namespace shell
