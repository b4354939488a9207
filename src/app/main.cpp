// Quenvale, the program with the window. The whole game is in class Game; SDL is in platform.
#include "app/game.h"
#include "office/settings_file.h"
#include "platform/desktop/program.h"

#include <chrono>
#include <clocale>
#include <iostream>
#include <memory>
#include <string>

namespace {

// The player's settings, from their file and back into it. What is wrong with it stands on the settings' sheet.
void UseSettings(Game& game, platform::SdlHost& host)
{
    const auto file = std::make_shared<office::SettingsFile>(files::UserConfigFolder());
    office::SettingsSheet& sheet = game.GetSettings();
    const office::SettingsText text = file->Read();
    for (const files::FileError& wrong : text.wrong) {
        std::cerr << "quenvale: " << wrong.Message() << '\n';
        sheet.Tell(wrong.Message());
    }
    sheet.Take(text.settings);
    sheet.onKept = [file, &sheet](const office::Settings& now) {
        const files::Failure failure = file->Write(now);
        sheet.Tell(failure ? failure->Message() : std::string());
    };
    host.place = text.settings.window;
}

}  // namespace

int main()
{
    std::setlocale(LC_ALL, "");
    platform::SdlHost host;
    const core::Chance::Clock timeOfDay = [] {
        return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
    };
    Game game(host, files::ProgramFolder::Find(), core::Chance(timeOfDay));
    UseSettings(game, host);
    game.Autosave(true);
    game.Start();
    const ui::Rect before = host.place;
    const int status = platform::Run(game.GetDesktop(), game.GetNarrator(), host, game.Folder());
    if (host.place != before) {
        game.GetSettings().Change([&host](office::Settings& settings) { settings.window = host.place; });
    }
    return status;
}
