#include "office/settings_file.h"

#include "files/whole_file.h"

#include <string>
#include <utility>

namespace office {

namespace {

constexpr std::string_view kFile = "settings";

}  // namespace

// Nothing of it is shipped, so that the folder and those above it are made where they are missing.
SettingsFile::SettingsFile(std::filesystem::path folder) : folder_("/", std::move(folder)) {}

SettingsText SettingsFile::Read(const Settings& delivered) const
{
    const std::filesystem::path path = folder_.WritePath(kFile);
    std::error_code error;
    if (path == kFile ||
        std::filesystem::symlink_status(path, error).type() == std::filesystem::file_type::not_found) {
        SettingsText text{delivered, {}};
        text.settings.firstSteps = true;
        return text;
    }
    const files::Result<std::string> content = files::ReadWhole(system_, path, path.string());
    return content ? ParseSettings(*content, path.string(), delivered)
                   : SettingsText{delivered, {content.Error()}};
}

files::Failure SettingsFile::Write(const Settings& settings) const
{
    const std::filesystem::path path = folder_.WritePath(kFile);
    if (path == kFile) {
        return files::FileError{std::string(kFile), 0,
                                "there is no folder for it (neither XDG_CONFIG_HOME nor HOME names one)",
                                files::FileError::Fault::System};
    }
    const files::WrittenFiles written(folder_, system_);
    const files::Result<files::FolderLock> lock = written.Lock(kFile);
    if (!lock) {
        return lock.Error();
    }
    std::string older;
    std::error_code error;
    if (std::filesystem::symlink_status(path, error).type() != std::filesystem::file_type::not_found) {
        const files::Result<std::string> content = files::ReadWhole(system_, path, path.string());
        if (!content) {
            return content.Error();
        }
        older = *content;
    }
    return written.Replace(*lock, kFile, PrintSettings(settings, older));
}

}  // namespace office
