// The archive: five slots of saved games and the names that the player gave them.
//
//     persist::Archive archive(files);
//     if (files::Failure failure = archive.Save(3, state)) { ... }
//     files::Result<core::GameState> loaded = archive.Load(3, state);
#pragma once

#include "files/written_files.h"
#include "persist/saved_game.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace persist {

inline constexpr std::int64_t kSlots = 5;
using SlotNames = std::array<std::string, kSlots>;

std::string SlotFile(std::int64_t slot);  // "Save/Save1"

class Archive {
public:
    explicit Archive(const files::WrittenFiles& files) : files_(files) {}

    files::Result<bool> Used(std::int64_t slot) const;  // 1..5
    files::Failure Save(std::int64_t slot, const core::GameState& state) const;
    // What is not saved is taken from `state`.
    files::Result<core::GameState> Load(std::int64_t slot, const core::GameState& state) const;
    // Whether what was saved there last stays: `then` is told as files::WrittenFiles::WhenKept tells.
    void WhenKept(std::int64_t slot, std::function<void(const files::Failure&)> then) const
    {
        files_.WhenKept(SlotFile(slot), std::move(then));
    }
    // Whether the slot holds something else than the game wrote there. Such a game may well be whole, and what a
    // player edits is his own affair; he only ought to know.
    bool Altered(std::int64_t slot) const;

    // For the screens: who governs in the saved game, and when it was written. None where there is none to be read.
    struct Note {
        std::string president;  // empty when nobody has written it down
        std::int64_t months;
        std::int64_t level;  // a core::Level
        std::string date;    // "2026-11-23"
    };
    std::optional<Note> About(std::int64_t slot) const;
    // The name is none of what a saved game holds; it lies beside it, in Save1.president.
    files::Failure NotePresident(std::string_view savedGame, const std::string& name) const;

    // None where no names were given yet.
    files::Result<std::optional<SlotNames>> Names() const;
    // Makes an empty file of names where there is none, and the archive's folder with it.
    files::Failure Prepare() const;
    // Writes the names. Another game may have named its own slot since this one read them (`before`): what was
    // not changed here stays as it is in the file. A file that cannot be read is kept under another name.
    files::Failure SaveNames(const SlotNames& before, const SlotNames& now, std::int64_t slot) const;

    // Every file that the archive writes.
    static std::vector<std::string> Files();

private:
    const files::WrittenFiles& files_;
};

}  // namespace persist
