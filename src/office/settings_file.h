// The settings' file, $XDG_CONFIG_HOME/quenvale/settings.
//
//     SettingsFile file(files::UserConfigFolder());
//     const SettingsText text = file.Read();       // as delivered where there is none
//     if (files::Failure failure = file.Write(settings)) { Tell(failure->Message()); }
#pragma once

#include "files/program_folder.h"
#include "files/system_calls.h"
#include "files/written_files.h"
#include "office/settings.h"

#include <filesystem>

namespace office {

class SettingsFile {
public:
    // An empty folder is that of a user without a home: nothing is read, and writing fails. Who has no file yet
    // is new here.
    explicit SettingsFile(std::filesystem::path folder);

    SettingsText Read(const Settings& delivered = {}) const;
    // Keeps every line that is not ours, also what another game has added since.
    files::Failure Write(const Settings& settings) const;

private:
    files::ProgramFolder folder_;
    mutable files::SystemCalls system_;
};

}  // namespace office
