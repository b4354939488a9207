#include "app/kept_settings.h"

#include "office/settings_file.h"

#include <iostream>
#include <memory>
#include <string>

ui::Rect UseSettings(Game& game)
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
    return text.settings.window;
}
