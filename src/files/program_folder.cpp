#include "files/program_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace files {

namespace {

bool LooksRight(const std::filesystem::path& folder)
{
    std::error_code error;
    return std::filesystem::is_directory(folder / "images", error) &&
           std::filesystem::is_directory(folder / "data", error);
}

// Whether the game may put its files there: into the folders it writes, or make them where they are missing.
bool MayWrite(const std::filesystem::path& root)
{
    const auto mayWrite = [](const std::filesystem::path& folder) {
        return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
    };
    std::error_code error;
    for (const char* name : {"Data", "Save"}) {
        const std::filesystem::path folder = root / name;
        if (!mayWrite(std::filesystem::exists(folder, error) ? folder : root)) {
            return false;
        }
    }
    return true;
}

// The folder that the variable names, or this one in the user's home; empty for a user without a home.
std::filesystem::path UserFolder(const char* variable, std::string_view inHome)
{
    const char* folder = std::getenv(variable);
    if (folder != nullptr && *folder == '/') {  // the convention: a relative one is not meant
        return std::filesystem::path(folder) / "quenvale";
    }
    const char* home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        return std::filesystem::path(home) / inHome / "quenvale";
    }
    return {};
}

std::filesystem::path UserDataFolder()
{
    return UserFolder("XDG_DATA_HOME", ".local/share");
}

}  // namespace

std::filesystem::path UserConfigFolder()
{
    return UserFolder("XDG_CONFIG_HOME", ".config");
}

ProgramFolder ProgramFolder::At(std::filesystem::path root, Place place)
{
    std::filesystem::path user = UserDataFolder();
    if (user.empty() || (place == Place::Portable && MayWrite(root))) {
        return ProgramFolder(std::move(root));
    }
    return {std::move(root), std::move(user)};
}

std::filesystem::path ProgramFolder::ReadPath(std::string_view file) const
{
    std::error_code error;
    std::filesystem::path written = WritePath(file);
    const bool there = std::filesystem::exists(std::filesystem::symlink_status(written, error));
    return there ? written : Path(file);
}

ProgramFolder ProgramFolder::Find()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    const std::filesystem::path beside = program.parent_path();
    const struct {
        std::filesystem::path root;
        Place place;
    } places[] = {
        {beside, Place::Portable},
        {beside / "../share/games/quenvale", Place::Shared},
        {beside / "../share/quenvale", Place::Shared},
        {beside / "assets", Place::Shared},     // the game in its build folder
        {beside / "../assets", Place::Shared},  // a test or a benchmark there
    };
    for (const auto& [root, place] : places) {
        if (LooksRight(root)) {
            return At(std::filesystem::weakly_canonical(root, error), place);
        }
    }
    return At(beside, Place::Portable);
}

Result<std::vector<Item>> ProgramFolder::Items(std::string_view file) const
{
    if (!remembered_) {
        return ReadItems(Path(file), file);
    }
    auto found = remembered_->find(file);
    if (found == remembered_->end()) {
        Result<std::vector<Item>> items = ReadItems(Path(file), file);
        if (!items) {
            return items;
        }
        found = remembered_->emplace(file, *items).first;
    }
    return found->second;
}

}  // namespace files
