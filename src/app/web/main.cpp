// Quenvale on a page. The same game; its files were put into the browser's memory by the page's script.
#include "app/game.h"
#include "app/kept_settings.h"
#include "platform/web/program.h"

#include <chrono>
#include <memory>
#include <utility>

int main()
{
    const files::ProgramFolder folder =
        files::ProgramFolder::At("/game", files::ProgramFolder::Place::Shared);
    const core::Chance::Clock timeOfDay = [] {
        return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    };
    // They live as long as the page, which goes on when this function has returned.
    static platform::PageHost host(folder);
    auto owned = std::make_unique<platform::KeptFiles>();
    static platform::KeptFiles& files = *owned;
    static Game game(host, folder, core::Chance(timeOfDay), core::NumberFormat::OfUser(), std::move(owned));
    UseSettings(game, {.fullScreen = false}, [] { files.Keep(); });
    game.Autosave(true);
    game.Vary(true);
    game.Start();
    platform::Start({game.GetDesktop(), game.GetNarrator(), host, files}, game.Folder());
    return 0;
}
