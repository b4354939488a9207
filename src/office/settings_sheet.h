// The settings' sheet: shows them, changes them, and each change counts at once.
//
//     sheet.onChanged = [](const Settings& now) { ... };   // carries them out
//     sheet.onKept = [](const Settings& now) { ... };      // after a change by the player: to be kept
//     sheet.Take(file.Read().settings);
//     sheet.Open();
#pragma once

#include "media/cues.h"
#include "office/settings.h"
#include "ui/screens/frm_settings.h"

#include <functional>
#include <string_view>

namespace office {

class SettingsSheet {
public:
    SettingsSheet(screens::FrmSettings& form, media::Sound& sound);

    void Open();
    const Settings& Now() const { return now_; }
    // As they were kept; nobody is asked to keep them again.
    void Take(const Settings& settings);
    // What the player has changed elsewhere: a key, the window's place.
    void Change(const std::function<void(Settings&)>& change);
    // What is wrong with the file, shown on the sheet.
    void Tell(std::string_view trouble) { form_.lblTrouble.SetText(trouble); }

    // What "As delivered" goes back to; a page in a browser begins in its window.
    Settings delivered;

    std::function<void(const Settings&)> onChanged;
    std::function<void(const Settings&)> onKept;

private:
    void Step(int row);
    void Print();

    screens::FrmSettings& form_;
    media::Sound& sound_;
    Settings now_;
};

}  // namespace office
