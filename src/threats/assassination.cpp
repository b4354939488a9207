#include "threats/assassination.h"

#include "core/numbers.h"
#include "month/banner.h"
#include "threats/assassination_rules.h"

#include <string>

namespace threats {

namespace {

constexpr std::int64_t kSuspense = 5500;  // milliseconds
constexpr std::int64_t kMourning = 4000;

std::string SoundFile(std::int64_t number)
{
    return "sound/assasin" + core::Digits(number) + ".wav";
}

}  // namespace

Assassination::Assassination(core::GameState& state, core::Chance& chance, core::Journal& journal,
                             month::Month& month, Screens screens, media::Sound& sound)
    : state_(state), chance_(chance), journal_(journal), month_(month), screens_(screens), sound_(sound)
{
    screens.frmMes.Command1.onClick = [this] { Acknowledge(); };
    screens.frmAFailed.Command1.onClick = [this] { KillThemAll(); };
    screens.frmAFailed.Command2.onClick = [this] { LetThemLive(); };
    screens.frmMes1.Command1.onClick = [this] {
        sound_.SoundClick();
        screens_.frmMes1.Hide();
        month_.CloseWithSecondHalf();
    };
}

bool Assassination::AssasinThink()
{
    const std::int64_t faction = DrawPlotters(state_, chance_);
    if (faction == 0) {
        return false;
    }
    BeginAttempt(state_, faction);
    journal_.Add(core::Kind::Attempt, core::FactionOf(faction));
    screens_.frmMes.Label1.SetText(" Assasination attempt by some of the " +
                                   std::string(PlottersOf(faction).announced) + "!");
    screens_.frmMes.Show();
    return true;
}

// The message stays until the pause is over.
void Assassination::Acknowledge()
{
    const std::int64_t sound = NextSound(state_, chance_);
    sound_.SoundClick();
    sound_.PlayWave(SoundFile(sound));
    screens_.frmMain.Timer5.SetInterval(kSuspense);
}

void Assassination::AfterTheWarning()
{
    screens_.frmMes.Hide();
    screens_.frmMain.Show();
    AssasinTry();
}

void Assassination::AssasinTry()
{
    if (AttemptKills(state_, chance_)) {
        month::SayDead(screens_.frmMonthBanner, " Y O U    A R E   D E A D ! ");
        state_.Dead = 1;
        journal_.Add(core::Kind::End, core::FactionOf(state_.AttackingFaction), 0);
        screens_.frmMain.Timer4.SetInterval(kMourning);
        return;
    }
    journal_.Add(core::Kind::Survived, core::FactionOf(state_.AttackingFaction));
    screens_.frmMain.Timer1.SetInterval(0);
    month::ClearBanner(screens_.frmMonthBanner);
    screens_.frmAFailed.Show();
}

void Assassination::KillThemAll()
{
    screens_.frmAFailed.Hide();
    sound_.SoundClick();
    const std::int64_t faction = FactionThatTried(state_);
    if (faction != 0) {
        const std::int64_t executed = ExecutePlotters(state_, chance_, faction);
        journal_.Add(core::Kind::Executed, core::FactionOf(faction), executed);
        screens_.frmMes1.Label1.SetText("The opposition leaders of the " +
                                        std::string(PlottersOf(faction).executed) + " have been executed!");
    }
    screens_.frmMes1.Show();
    ForgetAttempts(state_);
}

void Assassination::LetThemLive()
{
    sound_.SoundClick();
    const std::int64_t faction = FactionThatTried(state_);
    if (faction != 0) {
        SparePlotters(state_, faction);
        journal_.Add(core::Kind::Spared, core::FactionOf(faction));
    }
    month::Say(screens_.frmMonthBanner, "Oh! Mr.President, you are so gracious!");
    ForgetAttempts(state_);
    screens_.frmAFailed.Hide();
    month_.CloseWithSecondHalf();
}

}  // namespace threats
