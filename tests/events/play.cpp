#include "events/play.h"

namespace test {

std::string FlatCard(int figure)
{
    std::string card;
    for (int i = 0; i < 19; ++i) {
        card += std::to_string(figure) + "\r\n";
    }
    return card + "\"the title\"\r\n\"the effects\"\r\n\"the result\"\r\n";
}

void WriteBlankCards(const TemporaryFolder& folder)
{
    for (int n = 1; n <= 25; ++n) {
        folder.Write("Actions/" + std::to_string(n), FlatCard());
    }
    for (int n = 1; n <= 7; ++n) {
        folder.Write("Actions/M" + std::to_string(n), FlatCard());
    }
}

void PickChief(TestGame& game, Where where)
{
    for (const char* screen : {"frmPolc", "frmArmyC"}) {
        // A click on one who was picked before does nothing.
        for (int candidate = 1; candidate <= 10 && game.Shown(screen, where); ++candidate) {
            game.Click(std::string(screen) + ".Label1(" + std::to_string(candidate) + ")", where);
        }
    }
}

void TakeAction(TestGame& game, int action, Where where)
{
    game.Click("frmMain.Label5(0)", where);
    game.Click("frmActions.Command1(" + std::to_string(action) + ")", where);
    game.Click("frmShow.Command3", where);
    PickChief(game, where);
}

void CalmDown(TestGame& game)
{
    core::GameState& state = game.State();
    state.Strength.fill(20);
    state.Opposition.fill(0);
    state.Strength[core::Guerrillas] = 1;
    state.Strength[core::Prisoners] = 0;
    state.AmericanHostility = 0;
    state.War = 0;
    state.GuerrillaWar = 0;
    state.Money = 1'000'000'000;
    for (core::OfficerTable* table : {&state.PoliceChiefs, &state.ArmyChiefs}) {
        (*table)[0][core::kAbility] = core::i32{1};
        (*table)[0][core::kAmbition] = core::i32{1};
    }
}

void EndMonth(TestGame& game, std::initializer_list<double> draws, Where where)
{
    game.Click("frmMain.Label5(4)", where);
    game.Tell(draws);
    game.Wait(3000);
}

}  // namespace test
