#include "shell/opening.h"

#include <algorithm>
#include <array>
#include <string>

namespace shell {

namespace {

// Where the level button leads from each level, what it says there, and what the level changes.
struct LevelStep {
    core::Level next;
    std::string_view caption;
    std::string_view changes;
};
constexpr core::PerLevel<LevelStep> kLevels = std::to_array<LevelStep>({
    {core::kNormal, "Level Easy", "Smaller bills, milder revolts. Your score as it is."},
    {core::kHard, "Level Normal", "The usual bills and revolts. Your score x 1.2."},
    {core::kEasy, "Level Hard", "Larger bills, fiercer revolts. Your score x 1.4."},
});

// A level that there is none of, from a broken saved game, counts as the hardest.
const LevelStep& StepFrom(std::int64_t level)
{
    return kLevels[core::LevelIndex(level)];
}

}  // namespace

Opening::Opening(core::GameState& state, Screens screens, media::Sound& sound, media::Host& host,
                 Display& display, Manual& manual)
    : state_(state), screens_(screens), sound_(sound), host_(host), display_(display)
{
    screens.frmlogo.onClick = [this] { LeaveTitle(); };
    screens.frmStart.onLoad = [this] { state_.Difficulty = core::kNormal; };
    screens.frmStart.Command1.onClick = [this] {
        sound_.SoundClick();
        StartGame();
    };
    screens.frmStart.Command4.onClick = [this] {
        sound_.SoundClick();
        screens_.frmStart.Hide();
        loadGame();
    };
    screens.frmStart.Command2.onClick = [this] { StepLevel(); };
    screens.frmStart.Command3.onClick = [this] { Quit(); };
    screens.frmStart.cmdSettings.onClick = [this] {
        sound_.SoundClick();
        settings();
    };
    screens.frmStart.Command5.onClick = [this, &manual] {
        sound_.SoundClick();
        manual.Open();
    };
    screens.frmName.Command3.onClick = [this] { TakeName(); };
    screens.frmAbout.onClick = [this] {
        sound_.SoundClick();
        screens_.frmAbout.Hide();
    };
}

void Opening::ShowTitle()
{
    screens_.frmlogo.Show();
}

void Opening::LeaveTitle()
{
    sound_.SoundQuake();
    sound_.SoundClick();
    display_.SwitchDisplayMode();
    ShowStart();
    screens_.frmlogo.Unload();
}

void Opening::ShowStart()
{
    screens_.frmStart.Load();
    screens_.frmStart.Label3.SetText("");
    ShowLevel();
    onStartShown();
    screens_.frmStart.Show();
}

void Opening::StepLevel()
{
    sound_.SoundClick();
    state_.Difficulty = StepFrom(state_.Difficulty).next;
    ShowLevel();
}

void Opening::ShowLevel()
{
    screens_.frmStart.Command2.SetText(StepFrom(state_.Difficulty).caption);
    screens_.frmStart.lblLevel.SetText(StepFrom(state_.Difficulty).changes);
}

void Opening::StartGame()
{
    BeginGame();
    screens_.frmName.ShowModal();
}

void Opening::BeginGame()
{
    screens_.frmStart.Hide();
    screens_.frmMonthBanner.Show();
    screens_.frmMonthBanner.SetEnabled(false);
    screens_.frmMain.Show();
}

void Opening::TakeName()
{
    state_.PlayerName = screens_.frmName.Text1.Text();
    screens_.frmName.Hide();
    screens_.frmName.Unload();
    sound_.SoundClick();
}

void Opening::Quit()
{
    sound_.SoundClick();
    display_.RestoreDisplayMode();
    host_.EndProgram();
}

}  // namespace shell
