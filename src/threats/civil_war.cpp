#include "threats/civil_war.h"

#include "core/names.h"
#include "core/society.h"
#include "month/banner.h"
#include "threats/civil_war_rules.h"
#include "ui/look/look.h"

#include <string>

namespace threats {

namespace {

constexpr std::int64_t kTheFighting = 7500;  // milliseconds
constexpr std::int64_t kBeforeTheHall = 6000;

constexpr std::string_view kLost =
    "Your army lost the battle! Revolutioneries found you hiding in the basement of your mansion. You were "
    "executed immediately!";
constexpr std::string_view kLostPicture = "images/execution.png";
constexpr std::string_view kWonPicture = "images/civilwar-won.png";
constexpr std::string_view kWon = "You win! Revolutioneries' leaders were arrested and executed!";

std::string NameOfOffer(std::int64_t faction)
{
    return "R" + core::Digits(faction);
}

}  // namespace

CivilWar::CivilWar(core::GameState& state, core::Chance& chance, core::Journal& journal, month::Month& month,
                   const files::ProgramFolder& folder, const core::Variants& variants, Screens screens,
                   media::Sound& sound, const core::NumberFormat& format, Flight& flight)
    : state_(state)
    , chance_(chance)
    , journal_(journal)
    , month_(month)
    , folder_(folder)
    , variants_(variants)
    , screens_(screens)
    , sound_(sound)
    , format_(format)
{
    screens.frmChoose.Command1.OnClick([this](int button) { Ask(button); });
    screens.frmChoose.Command2.onClick = [this, &flight] { flight.From(screens_.frmChoose); };
    screens.frmMes2.Command1.onClick = [this] { Never(); };
    screens.frmMes2.Command2.onClick = [this] { Deal(); };
    screens.frmMain.Timer3.onTimer = [this] { Timer3_Timer(); };
}

void CivilWar::StandAgainst(ui::Form& dialog)
{
    sound_.SoundClick();
    dialog.Hide();
    Choose();
}

// The ally ------------------------------------------------------------------------------------------------

void CivilWar::Choose()
{
    core::UpdateTotalStrength(state_);
    core::UpdateStrengthShares(state_);
    screens_.frmChoose.Unload();
    AskForHelp();
    ShowCandidates();
    OfferFlightWhenAlone();
    screens_.frmChoose.Show();
}

void CivilWar::AskForHelp()
{
    screens_.frmChoose.Label1.SetText("Mr.President, your personal army Strength is at " +
                                      core::Digits(state_.StrengthPctPersonalArmy) +
                                      "% but you can ask help from one of the following parties");
}

// Everybody who is not in the revolution.
void CivilWar::ShowCandidates()
{
    screens::FrmChoose& choose = screens_.frmChoose;
    candidates_ = 0;
    away_ = {};
    for (std::size_t n = 1; n <= core::kFactions; ++n) {
        if (state_.Revolutionaries[n] != 0 || !choose.Command1.Has(candidates_ + 1)) {
            continue;
        }
        const int button = ++candidates_;
        const auto faction = static_cast<std::int64_t>(n);
        choose.Command1[button].SetText(std::string(core::FactionName(faction)) + " Strength at " +
                                        format_.Amount(static_cast<double>(state_.StrengthPct[n - 1])) + "%");
        choose.Command1[button].SetVisible(true);
        state_.ChoiceFaction.at(static_cast<std::size_t>(button)) = faction;
    }
}

void CivilWar::OfferFlightWhenAlone()
{
    bool alone = true;
    for (int button = 1; button <= candidates_; ++button) {
        alone = alone && Away(button);
    }
    screens_.frmChoose.Command2.SetVisible(alone);
    Stretch(alone ? candidates_ + 1 : candidates_);
}

bool CivilWar::Away(int button) const
{
    return away_.at(
        static_cast<std::size_t>(std::int64_t{state_.ChoiceFaction.at(static_cast<std::size_t>(button))}));
}

// Makes the dialog a step taller for each button and keeps it in the middle; the last button's place is also
// that of the way out.
void CivilWar::Stretch(int buttons)
{
    screens::FrmChoose& choose = screens_.frmChoose;
    ui::Rect sheet = screens::kChooseSheet;
    sheet.height += buttons * screens::kChooseStep;
    const int down = (screens::kChooseRoom - sheet.height) / 2;
    const auto moved = [down](ui::Rect place) {
        place.top += down;
        return place;
    };
    choose.SetRect(moved(sheet));
    choose.Label1.SetRect(moved(screens::kChooseText));
    for (int button = 1; button < choose.Command1.End(); ++button) {
        choose.Command1[button].SetRect(moved(screens::ChoosePlace(button)));
    }
    choose.Command2.SetRect(moved(screens::ChoosePlace(buttons)));
}

void CivilWar::Ask(int button)
{
    sound_.SoundClick();
    const std::int64_t faction = state_.ChoiceFaction.at(static_cast<std::size_t>(button));
    files::Result<core::Offer> offer = ReadOfferOf(faction);
    if (!offer) {
        TurnAway(faction, offer.Error());
        return;
    }
    variants_.Vary(NameOfOffer(faction), {&offer->text});
    state_.AlliedStrength =
        state_.Strength[core::GroupOfFaction(faction)] + state_.Strength[core::PersonalArmy];
    state_.AllyFaction = faction;
    screens_.frmMes2.Label1.SetText(offer->text);
    screens_.frmChoose.Hide();
    screens_.frmMes2.Show();
}

files::Result<core::Offer> CivilWar::ReadOfferOf(std::int64_t faction) const
{
    return core::ReadOffer(folder_, "Actions/" + NameOfOffer(faction));
}

// The dialog lies over the banner, so it repeats what the banner says.
void CivilWar::TurnAway(std::int64_t faction, const files::FileError& error)
{
    screens::FrmChoose& choose = screens_.frmChoose;
    const std::string refusal = "Mr.President, the " + std::string(core::FactionName(faction)) +
                                " cannot be asked. " + error.Message() +
                                ". We have thanked them all the same.";
    month::Say(screens_.frmMonthBanner, refusal);
    choose.Label1.SetText(refusal);
    away_.at(static_cast<std::size_t>(faction)) = true;
    for (int button = 1; button <= candidates_; ++button) {
        choose.Command1[button].SetEnabled(!Away(button));
    }
    OfferFlightWhenAlone();
}

void CivilWar::Never()
{
    sound_.SoundClick();
    screens_.frmMes2.Hide();
    AskForHelp();  // a refusal may still stand there
    screens_.frmChoose.Show();
}

void CivilWar::Deal()
{
    sound_.SoundClick();
    const files::Result<core::Offer> offer = ReadOfferOf(state_.AllyFaction);
    if (!offer) {  // it was there a moment ago
        screens_.frmMes2.Hide();
        screens_.frmChoose.Show();
        TurnAway(state_.AllyFaction, offer.Error());
        return;
    }
    core::Apply(offer->effects, state_);
    PayAlly(state_, state_.AllyFaction);
    journal_.Add(core::Kind::Ally, core::FactionOf(state_.AllyFaction), state_.AlliedStrength);
    screens_.frmMes2.Unload();
    screens_.frmChoose.Unload();
    sound_.SoundRev();
    screens_.frmMain.Show();
    month::Say(screens_.frmMonthBanner,
               "Your strength is " + core::Digits(state_.AlliedStrength) + "! Revolutioneries' strength is " +
                   core::Digits(state_.RevolutionaryStrength) + "! A small civil war starts.");
    screens_.frmMain.Timer3.SetInterval(kTheFighting);
}

// The battle ----------------------------------------------------------------------------------------------

void CivilWar::Timer3_Timer()
{
    screens_.frmMain.Timer3.SetInterval(0);
    if (state_.CoupState == core::kArmyChiefBeaten || state_.CoupState == core::kPoliceChiefBeaten) {
        ReplaceChief();
    } else {
        Fight();
    }
}

void CivilWar::Fight()
{
    screens_.frmMonthBanner.SetBack(look::kBlack);
    const bool won = BattleIsWon(state_, chance_);
    journal_.Add(core::Kind::Battle, core::Who::Nobody, won ? 1 : 0);
    if (won) {
        Win();
    } else {
        Lose();
    }
}

void CivilWar::Lose()
{
    month::Say(screens_.frmMonthBanner, kLost, kLostPicture);
    state_.Dead = 1;
    journal_.Add(core::Kind::End, core::Who::Nobody, 0);
    screens_.frmMain.Timer4.SetInterval(kBeforeTheHall);
}

void CivilWar::Win()
{
    month::Say(screens_.frmMonthBanner, kWon, kWonPicture);
    PunishRebels(state_, chance_);
    BuryGuards(state_, chance_);
    month_.EndOfTurn2();
    state_.PoliceNoInfo = 0;
    if (state_.CoupState == core::kArmyChiefRebels || state_.CoupState == core::kPoliceChiefRebels) {
        state_.CoupState =
            state_.CoupState == core::kArmyChiefRebels ? core::kArmyChiefBeaten : core::kPoliceChiefBeaten;
        screens_.frmMain.Timer3.SetInterval(kTheFighting);
    } else {
        month_.Close();
    }
}

void CivilWar::ReplaceChief()
{
    const auto& newChief = state_.CoupState == core::kArmyChiefBeaten ? newArmyChief : newPoliceChief;
    newChief([this] {
        state_.CoupState = core::kNoCoup;
        month_.Close();
    });
}

}  // namespace threats
