#include "shell/army.h"

#include "core/names.h"
#include "core/numbers.h"
#include "core/officers.h"

#include <array>
#include <string>

namespace shell {

namespace {

constexpr std::string_view kPeace = "We are in peace with all of our neigbors";

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

// What none of these lines covers leaves the status as it was.
void ArmyScreen::ShowWar()
{
    const std::string neighbour(core::NeighbourName(state_.War));
    if (state_.GuerrillaWar == 1 && state_.War != 0) {
        army_.Label7.SetText("We are currently attacking the Guerrillas!");
    } else if (state_.GuerrillaWar == 0 && state_.War == 0) {
        army_.Label7.SetText(kPeace);
    } else if (state_.GuerrillaWar == 0 && !neighbour.empty()) {
        army_.Label7.SetText("We are in war with " + neighbour + "!");
    }
}

}  // namespace shell
