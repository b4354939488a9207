// The settings' file as the game reads and writes it, one line a request: "read", "write VOLUME". Answers with JSON,
// as the console does, so that one test drives both.
#include "office/settings_file.h"

#include <iostream>
#include <string>

int main()
{
    const office::SettingsFile file(files::UserConfigFolder());
    for (std::string line; std::getline(std::cin, line);) {
        std::string told;
        office::SettingsText text = file.Read();
        if (line.starts_with("write ")) {
            text.settings.volume = std::stoi(line.substr(6));
            const files::Failure failure = file.Write(text.settings);
            told = failure ? failure->Message() : "";
        } else if (!text.wrong.empty()) {
            told = text.wrong.front().Message();
        }
        std::cout << R"({"ok":true,"volume":)" << text.settings.volume << R"(,"text":")" << told << "\"}"
                  << std::endl;
    }
}
