#include "shell/continuation.h"

#include "core/names.h"
#include "core/numbers.h"
#include "month/banner.h"
#include "text/short_text.h"

#include <string>

namespace shell {

namespace {

constexpr int kMonthsToTakeThePlace = 2;
constexpr std::size_t kNameColumns = 26;

constexpr std::string_view kAltered = "The archive remembers it otherwise. Continue all the same?";
constexpr std::string_view kWelcomeBack =
    "Welcome back, Mr.President. Nothing has changed, which took some effort.";

std::string NotKept(const files::FileError& error)
{
    return "Mr.President, this month could not be kept. " + error.Message() +
           ". Should the lights go out, we shall begin with an older one.";
}

std::string NotRead(const files::FileError& error)
{
    return "The last game cannot be read. " + error.Message() + ". It was left where it lies.";
}

std::string TitleOf(const core::GameState& game)
{
    std::string title = text::Shortened(game.PlayerName, kNameColumns);
    title += title.empty() ? "Month " : ", month ";
    return title + core::Digits(game.MonthsInPower) + ", " +
           std::string(core::kLevelNames[core::LevelIndex(game.Difficulty)]);
}

}  // namespace

Continuation::Continuation(core::GameState& state, Screens screens, media::Sound& sound,
                           const files::WrittenFiles& files)
    : state_(state), screens_(screens), sound_(sound), kept_(files)
{
    screens.frmStart.cmdContinue.onClick = [this] {
        sound_.SoundClick();
        Resume();
    };
}

void Continuation::Keep(bool keep)
{
    keeps_ = keep;
    if (screens_.frmStart.Visible()) {
        Offer();
    }
}

void Continuation::Offer()
{
    asked_ = false;
    ShowOffer(false, {});
    if (!keeps_) {
        return;
    }
    const auto game = kept_.Read(state_);
    if (!game) {
        screens_.frmStart.Label3.SetText(NotRead(game.Error()));
    } else if (*game) {
        ShowOffer(true, TitleOf(**game));
    }
}

void Continuation::ShowOffer(bool shown, std::string_view of)
{
    screens::FrmStart& start = screens_.frmStart;
    start.cmdContinue.SetVisible(shown);
    start.lblContinue.SetVisible(shown);
    start.lblContinue.SetText(of);
}

// It is read once more: another game may have been played meanwhile.
void Continuation::Resume()
{
    const auto game = kept_.Read(state_);
    if (!game || !*game) {
        Offer();
        if (!game) {  // also when the second look found nothing wrong: he has pressed, and nothing came
            screens_.frmStart.Label3.SetText(NotRead(game.Error()));
        }
        return;
    }
    if (!asked_ && kept_.Altered()) {
        asked_ = true;
        screens_.frmStart.Label3.SetText(kAltered);
        return;
    }
    beginGame();
    const core::GameState ofTheProgram = state_;
    state_ = **game;
    state_.HallShown = ofTheProgram.HallShown;
    state_.DisplayModeSet = ofTheProgram.DisplayModeSet;
    state_.SaveSlot = ofTheProgram.SaveSlot;
    Begin();
    ours_ = true;
    onResumed(persist::kKeptGame);
    month::Say(screens_.frmMonthBanner, kWelcomeBack);
}

void Continuation::Begin()
{
    ours_ = false;
    closed_ = 0;
    told_ = false;
}

bool Continuation::MayTakeThePlace() const
{
    return ours_ || closed_ >= kMonthsToTakeThePlace || kept_.IsFree();
}

void Continuation::MonthClosed()
{
    ++closed_;
    if (!keeps_ || !MayTakeThePlace()) {
        return;
    }
    const files::Failure failure = kept_.Write(state_);
    if (!failure) {
        ours_ = true;
        onKept(persist::kKeptGame);
    }
    TellWhenKept(failure);
}

void Continuation::GameOver()
{
    if (keeps_ && ours_) {
        TellWhenKept(kept_.Remove());
    }
    Begin();
}

void Continuation::TellWhenKept(const files::Failure& failure)
{
    if (failure) {
        Tell(failure);
    } else {
        kept_.WhenKept([this](const files::Failure& lost) { Tell(lost); });
    }
}

// Once, and behind what the month has said: the next months will fare no better.
void Continuation::Tell(const files::Failure& failure)
{
    if (failure && !told_) {
        const std::string said = screens_.frmMonthBanner.Label1.Text();
        month::Say(screens_.frmMonthBanner, said + (said.empty() ? "" : " ") + NotKept(*failure));
    }
    told_ = failure.has_value();
}

}  // namespace shell
