#include "events/proposals.h"

#include "core/banner.h"
#include "core/names.h"
#include "core/society.h"
#include "events/proposal_rules.h"

#include <array>
#include <string>

namespace events {

namespace {

constexpr std::int64_t kBeforeDeath = 5500;  // milliseconds

constexpr Story kWarNews{"images/newswar.bmp", "War! Neighbour caught existing"};

// By War.
constexpr std::array<std::string_view, 4> kNeighbours{"", "Hermosita", "Feraz", "Descalza"};

std::string Announcement(const core::GameState& state, const core::NumberFormat& format)
{
    const std::int64_t code = state.DealCode;
    if (IsWar(code)) {
        return "We declared war to " + std::string(kNeighbours[static_cast<std::size_t>(code)]) + "!";
    }
    if (IsBase(code)) {
        return "We now have " + core::Digits(state.USBases) + " USA bases in our country!";
    }
    return format.Amount(state.Compensation) + " dollars have been paid to the " +
           std::string(core::kGroupNames[Claimant(code)]) + "!";
}

}  // namespace

Proposals::Proposals(core::GameState& state, screens::Screens& screens, media::Sound& sound,
                     const core::NumberFormat& format, Newspaper& newspaper)
    : state_(state), screens_(screens), sound_(sound), format_(format), newspaper_(newspaper)
{
    screens.frmRandom2.Command1.onClick = [this] { AnswerYes(); };
    screens.frmRandom2.Command2.onClick = [this] { AnswerNo(); };
    screens.frmUSA.Command1.onClick = [this] { AwaitDeath(); };
}

// The war's news and the base's flag come when the month has closed.
void Proposals::AnswerYes()
{
    sound_.SoundClick();
    screens_.frmRandom2.Hide();
    Deal();
    if (IsWar(state_.DealCode)) {
        newspaper_.Print(kWarNews);
    } else if (state_.DealCode == kNavalBase) {
        state_.NavalBase = 1;
    } else if (state_.DealCode == kAirBase) {
        state_.AirBase = 1;
    }
}

void Proposals::AnswerNo()
{
    sound_.SoundClick();
    screens_.frmRandom2.Hide();
    Never();
}

void Proposals::Deal()
{
    Accept(state_);
    core::Say(screens_.frmMonthBanner, Announcement(state_, format_));
    EndAnswer();
}

void Proposals::Never()
{
    Refuse(state_);
    EndAnswer();
}

void Proposals::EndAnswer()
{
    core::FixNum(state_);
    core::GiveBack(screens_.frmMain);
    endOfTurn2();
}

void Proposals::AmericanAid()
{
    core::Say(screens_.frmMonthBanner, GrantAid(state_)
                                           ? "Americans will give you an aid of 50.000.000 dollars!"
                                           : "Americans say no to your request!");
}

void Proposals::ShowCia()
{
    screens_.frmUSA.Show();
}

void Proposals::AwaitDeath()
{
    sound_.SoundClick();
    screens_.frmUSA.Hide();
    sound_.SoundAssasin5();
    state_.AssassinationAttempts += 1;
    screens_.frmMain.Timer6.SetInterval(kBeforeDeath);
}

}  // namespace events
