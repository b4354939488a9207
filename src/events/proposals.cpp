#include "events/proposals.h"

#include "core/names.h"
#include "core/society.h"
#include "core/thresholds.h"
#include "events/proposal_rules.h"
#include "month/banner.h"

#include <string>

namespace events {

namespace {

constexpr std::int64_t kBeforeDeath = 5500;  // milliseconds

constexpr Story kWarNews{"images/newswar.bmp", "War! Neighbour caught existing"};

std::string Announcement(const core::GameState& state, const core::NumberFormat& format)
{
    const std::int64_t code = state.DealCode;
    if (IsWar(code)) {
        return "We declared war to " + std::string(core::NeighbourName(code)) + "!";
    }
    if (IsBase(code)) {
        return "We now have " + core::Digits(state.USBases) + " USA bases in our country!";
    }
    return format.Amount(state.Compensation) + " dollars have been paid to the " +
           std::string(core::kGroupNames[Claimant(code)]) + "!";
}

}  // namespace

Proposals::Proposals(core::GameState& state, core::Journal& journal, month::Month& month, Screens screens,
                     media::Sound& sound, const core::NumberFormat& format, Newspaper& newspaper)
    : state_(state)
    , journal_(journal)
    , month_(month)
    , screens_(screens)
    , sound_(sound)
    , format_(format)
    , newspaper_(newspaper)
{
    screens.frmRandom2.Command1.onClick = [this] { AnswerYes(); };
    screens.frmRandom2.Command2.onClick = [this] { AnswerNo(); };
    screens.frmUSA.Command1.onClick = [this] { AwaitDeath(); };
}

// The base stands before the month is closed; the war's news come behind it.
void Proposals::AnswerYes()
{
    sound_.SoundClick();
    screens_.frmRandom2.Hide();
    if (state_.DealCode == kNavalBase) {
        state_.NavalBase = 1;
    } else if (state_.DealCode == kAirBase) {
        state_.AirBase = 1;
    }
    Deal();
    if (IsWar(state_.DealCode)) {
        newspaper_.Print(kWarNews);
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
    NoteAnswer(true);
    month::Say(screens_.frmMonthBanner, Announcement(state_, format_));
    EndAnswer();
}

void Proposals::Never()
{
    Refuse(state_);
    NoteAnswer(false);
    EndAnswer();
}

void Proposals::EndAnswer()
{
    core::FixNum(state_);
    month_.CloseWithSecondHalf();
}

void Proposals::NoteAnswer(bool yes)
{
    const std::int64_t code = state_.DealCode;
    journal_.Add(core::Kind::Answer, IsClaim(code) ? core::WhoIs(Claimant(code)) : core::Who::Americans,
                 yes ? 1 : 0);
    if (yes && IsWar(code)) {
        journal_.Add(core::Kind::WarBegins, core::NeighbourOf(code));
    } else if (yes && IsBase(code)) {
        journal_.Add(core::Kind::Base, core::Who::Americans, state_.USBases);
    }
}

void Proposals::AmericanAid()
{
    const std::int64_t treasury = state_.Money;
    const bool granted = GrantAid(state_);
    journal_.Add(core::Kind::Aid, core::Who::Americans, state_.Money - treasury);
    month::Say(screens_.frmMonthBanner, granted ? "Americans will give you an aid of 50.000.000 dollars!"
                                                : "Americans say no to your request!");
}

bool Proposals::CiaStrikes()
{
    if (state_.AmericanHostility < core::kAmericansStrikeAt) {
        return false;
    }
    journal_.Add(core::Kind::Attempt, core::Who::Americans);
    screens_.frmUSA.Show();
    return true;
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
