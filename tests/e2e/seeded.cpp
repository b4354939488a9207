// Quenvale as src/app/main.cpp starts it, but for its dice: they fall by the seed in the one argument, so that the
// console can play the same game beside the window.
#include "app/game.h"
#include "app/kept_settings.h"
#include "platform/desktop/program.h"

#include <clocale>
#include <string>

int main(int count, char** words)
{
    std::setlocale(LC_ALL, "");
    platform::SdlHost host;
    core::Chance chance;
    chance.Seed(count > 1 ? std::stoull(words[1]) : 0);
    Game game(host, files::ProgramFolder::Find(), chance);
    host.place = UseSettings(game);
    game.Autosave(true);
    game.Start();
    return platform::Run(game.GetDesktop(), game.GetNarrator(), host, game.Folder());
}
