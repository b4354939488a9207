// What the player has set for all his games, and the text in which it is kept.
//
//     const SettingsText text = ParseSettings("pauses = short\n", "settings");
//     text.settings.pauses             // Pauses::Short; what the text does not tell is as delivered
//     PrintSettings(settings, "...")   // the old text with the new values in it
//
// A line is "name = value". One that names nothing of ours is kept as it is: a later version may know it.
#pragma once

#include "files/result.h"
#include "ui/toolkit/desktop.h"
#include "ui/toolkit/geometry.h"

#include <string>
#include <string_view>
#include <vector>

namespace office {

inline constexpr int kLoudest = 10;

struct Settings {
    int volume = kLoudest;  // 0 to kLoudest
    bool mute = false;
    bool fullScreen = true;
    ui::Pauses pauses = ui::Pauses::Full;
    bool hints = true;
    bool narration = false;
    bool firstSteps = false;    // the player's first game: he is told where to look
    bool voiceOffered = false;  // whoever has a screen reader is told once that the game can speak
    // Where the window was left, in pixels of the desktop; no width: never told.
    ui::Rect window{};
};

struct SettingsText {
    Settings settings{};
    std::vector<files::FileError> wrong{};  // by line; those settings are as delivered
};

// What the text does not tell is as in `delivered`.
SettingsText ParseSettings(std::string_view content, std::string_view name, const Settings& delivered = {});
// Replaces the values in an older text and adds those that it lacks.
std::string PrintSettings(const Settings& settings, std::string_view older);

}  // namespace office
