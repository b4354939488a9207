#include "shell/army.h"

#include "core/numbers.h"
#include "core/officers.h"

#include <array>
#include <string>

namespace shell {

namespace {

// By War, 0 being peace.
constexpr std::array<std::string_view, 4> kWarStatus{
    "We are in peace with all of our neigbors",
    "We are in war with Hermosita!",
    "We are in war with Feraz!",
    "We are in war with Descalza!",
};

}  // namespace

void ArmyScreen::Open()
{
    army_.Show();
    ShowIslands();
    ShowBases();
    ShowStrengths();
    ShowWar();
}

// Marks only ever appear: an island that was sold does not come back in this game.
void ArmyScreen::ShowIslands()
{
    const std::array<ui::Control*, 3> marks{&army_.Label10, &army_.Label11, &army_.Label12};
    for (std::size_t i = 0; i < marks.size(); ++i) {
        if (state_.IslandsSold > static_cast<std::int64_t>(i) && state_.IslandsSold <= 3) {
            marks[i]->SetVisible(true);
        }
    }
}

void ArmyScreen::ShowBases()
{
    army_.Image8.SetVisible(state_.NavalBase == 1);
    army_.Label8.SetVisible(state_.NavalBase == 1);
    army_.Image9.SetVisible(state_.AirBase == 1);
    army_.Label9.SetVisible(state_.AirBase == 1);
}

void ArmyScreen::ShowStrengths()
{
    army_.Label1.SetText("ARMY CHIEF IS " + core::ChiefInOffice(state_.ArmyChiefs));
    army_.Label2.SetText("Our army's strength is " + core::Digits(state_.Strength[core::Army]));
    army_.Label3.SetText("Guerrillas' strength is " + core::Digits(state_.Strength[core::Guerrillas]));
    army_.Label4.SetText("Hermosita's strength is " + core::Digits(state_.HermositaStrength));
    army_.Label5.SetText("Feraz's strength is " + core::Digits(state_.FerazStrength));
    army_.Label6.SetText("Descalza's strength is " + core::Digits(state_.DescalzaStrength));
}

// What no line of this table covers leaves the status as it was.
void ArmyScreen::ShowWar()
{
    const auto war = static_cast<std::size_t>(std::int64_t{state_.War});
    if (state_.GuerrillaWar == 1 && war != 0) {
        army_.Label7.SetText("We are currently attacking the Guerrillas!");
    } else if (state_.GuerrillaWar == 0 && war < kWarStatus.size()) {
        army_.Label7.SetText(kWarStatus[war]);
    }
}

}  // namespace shell
