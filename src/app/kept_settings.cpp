#include "app/kept_settings.h"

#include "office/settings_file.h"

#include <iostream>
#include <memory>
#include <string>
#include <utility>

ui::Rect UseSettings(Game& game, const office::Settings& delivered, std::function<void()> onWritten)
{
    const auto file = std::make_shared<office::SettingsFile>(files::UserConfigFolder());
    office::SettingsSheet& sheet = game.GetSettings();
    sheet.delivered = delivered;
    const office::SettingsText text = file->Read(delivered);
    for (const files::FileError& wrong : text.wrong) {
        std::cerr << "quenvale: " << wrong.Message() << '\n';
        sheet.Tell(wrong.Message());
    }
    sheet.Take(text.settings);
    sheet.onKept = [file, &sheet, onWritten = std::move(onWritten)](const office::Settings& now) {
        const files::Failure failure = file->Write(now);
        sheet.Tell(failure ? failure->Message() : std::string());
        if (!failure && onWritten) {
            onWritten();
        }
    };
    return text.settings.window;
}
