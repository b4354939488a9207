// The program folder: the one that holds Actions, data, Data, images, sound and Save.
//
// It is looked for from the program's own place and nowhere else, so that a program that was moved together
// with its folder still plays: beside the program (the portable folder), in the shared data folder of an
// installation, at last behind the link "assets" with which a build folder, or the one above the program there,
// points at its source tree.
//
// What the game writes (saved games, the hall of fame) lies in a portable folder too, if the player may write
// there. An installation and a source tree are for everybody and stay as they are: then these files lie in the
// user's data folder, and where he has none yet the shipped one is read. A folder that somebody names is always
// used for both.
//
//     folder.Path("data/names")         // a shipped file
//     folder.ReadPath("Data/Top")       // a file that the game writes, as it is now
//     folder.WritePath("Data/Top")      // where its next version goes
#pragma once

#include "files/result.h"
#include "files/text_records.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace files {

// Where the user's settings lie: $XDG_CONFIG_HOME/quenvale or ~/.config/quenvale; empty for a user without a home.
std::filesystem::path UserConfigFolder();

class ProgramFolder {
public:
    explicit ProgramFolder(std::filesystem::path root) : root_(root), written_(std::move(root)) {}
    ProgramFolder(std::filesystem::path root, std::filesystem::path written)
        : root_(std::move(root)), written_(std::move(written))
    {}

    // The folder the game uses when nobody names one; beside the program when none is found at all.
    static ProgramFolder Find();
    // The folder at this place, with the user's data folder beside it when it must not be written.
    enum class Place { Portable, Shared };
    static ProgramFolder At(std::filesystem::path root, Place place);

    const std::filesystem::path& Root() const { return root_; }
    // The whole path of a file named with '/' below the folder: "sound/click.wav".
    std::filesystem::path Path(std::string_view file) const { return root_ / file; }

    // The records of a shipped file, as they are now; once this folder remembers, as they were the first time.
    Result<std::vector<Item>> Items(std::string_view file) const;
    // For who plays thousands of games in one go. Copies of this folder remember together: for one thread.
    void Remember() { remembered_ = std::make_shared<Remembered>(); }

    std::filesystem::path WritePath(std::string_view file) const { return written_ / file; }
    std::filesystem::path ReadPath(std::string_view file) const;

private:
    using Remembered = std::map<std::string, std::vector<Item>, std::less<>>;

    std::filesystem::path root_;
    std::filesystem::path written_;
    std::shared_ptr<Remembered> remembered_;
};

}  // namespace files
