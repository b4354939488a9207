// How many months a second the game plays without a window: the menu's click, three seconds of the virtual
// clock, the month's chain and its end. items_per_second is months a second.
#include "app/game.h"
#include "media/silent_host.h"

#include <benchmark/benchmark.h>

namespace {

// Keeps the country quiet, so that every month runs the whole chain without an event that waits for somebody.
void Calm(core::GameState& state)
{
    state.Money = 1'000'000'000;
    state.Strength[core::Guerrillas] = 2;
    state.Strength[core::Prisoners] = 1;
    state.Population[core::Workers] = 2'206'140;
    state.Population[core::Peasants] = 2'997'840;
    state.MonthsInPower = 1;
    state.EventDraw = 0;
    state.Opposition.fill(10);
}

void PlayMonths(benchmark::State& bench)
{
    media::SilentHost host;
    Game game(host, files::ProgramFolder::Find(), core::Chance());
    ui::Desktop& desktop = game.GetDesktop();
    screens::Screens& screens = game.GetScreens();
    game.Start();
    desktop.Click(screens.frmlogo);
    desktop.Click(screens.frmStart.Command1);
    desktop.Click(screens.frmName.Command3);

    // Draws that make neither an event nor a request on Normal.
    constexpr double kQuiet = 0.99;
    for (auto _ : bench) {
        Calm(game.State());
        game.GetChance().Tell(kQuiet);
        game.GetChance().Tell(kQuiet);
        game.GetChance().Tell(kQuiet);
        if (const ui::Refusal refusal = desktop.Click(screens.frmMain.Label5[screens::kMenuNextMonth])) {
            bench.SkipWithError(refusal->c_str());
            break;
        }
        desktop.Advance(3000);
        if (game.State().MonthsInPower != 2 || !screens.frmMain.Enabled()) {
            bench.SkipWithError("the month did not end quietly");
            break;
        }
    }
    bench.SetItemsProcessed(bench.iterations());
}
BENCHMARK(PlayMonths);

}  // namespace
