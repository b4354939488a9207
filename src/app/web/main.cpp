// Quenvale on a page. The same game; its files were put into the browser's memory by the page's script.
#include "app/game.h"
#include "platform/web/kept_files.h"
#include "platform/web/program.h"

#include <chrono>

int main()
{
    const files::ProgramFolder folder =
        files::ProgramFolder::At("/game", files::ProgramFolder::Place::Shared);
    const core::Chance::Clock timeOfDay = [] {
        return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    };
    // They live as long as the page, which goes on when this function has returned.
    static platform::PageHost host(folder);
    static Game game(host, folder, core::Chance(timeOfDay), core::NumberFormat::OfUser(),
                     std::make_unique<platform::KeptFiles>());
    game.Autosave(true);
    game.Start();
    platform::Start(game.GetDesktop(), host, game.Folder());
    return 0;
}
