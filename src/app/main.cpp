// Quenvale, the program with the window. The whole game is in class Game; SDL is in platform.
#include "app/game.h"
#include "app/kept_settings.h"
#include "platform/desktop/program.h"

#include <chrono>
#include <clocale>

int main()
{
    std::setlocale(LC_ALL, "");
    platform::SdlHost host;
    const core::Chance::Clock timeOfDay = [] {
        return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    };
    Game game(host, files::ProgramFolder::Find(), core::Chance(timeOfDay));
    host.place = UseSettings(game);
    game.Autosave(true);
    game.Vary(true);
    game.Start();
    const ui::Rect before = host.place;
    const int status = platform::Run(game.GetDesktop(), game.GetNarrator(), host, game.Folder());
    if (host.place != before) {
        game.GetSettings().Change([&host](office::Settings& settings) { settings.window = host.place; });
    }
    return status;
}
