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
    Bind(screens.frmOptions.lblChronicle, chronicle);
    Bind(screens.frmOptions.lblSettings, settings);
}

// A card that the game added of its own.
void Options::Bind(ui::Label& card, std::function<void()>& open)
{
    card.onClick = [this, &open] {
        sound_.SoundClick();
        screens_.frmOptions.Hide();
        open();
    };
    card.onHover = [this, &card] {
        Label5_MouseMove(screens::kOptionItems);
        Light(card, true);
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

void Options::Light(ui::Label& card, bool lit)
{
    card.SetBack(lit ? look::kBlack : look::kYellow);
    card.SetFore(lit ? look::kWhite : look::kBlack);
}

void Options::Label5_MouseMove(int index)
{
    Light(screens_.frmOptions.lblChronicle, false);
    Light(screens_.frmOptions.lblSettings, false);
    for (int i = 0; i < screens::kOptionItems; ++i) {
        Light(screens_.frmOptions.Label5[i], i == index);
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
    screens_.frmHistory.lblWorth[screens::kWorthLevel].SetText(
        "all of it x " + format_.OneDecimal(persist::LevelFactor(entry.level)));
    screens_.frmHistory.Show();
}

}  // namespace shell
