// The game as it stood when its last month was closed, in a place of the archive of its own: "Continue".
//
//     const persist::KeptGame kept(files);
//     if (files::Failure failure = kept.Write(state)) { ... }
//     files::Result<std::optional<core::GameState>> there = kept.Read(state);     // none where none is kept
//
// A saved game's 250 records leave out what a slot never held: the president's name, the bases, the islands. This
// one holds the whole record, each value in a line with its name, so that nothing is lost between two months.
#pragma once

#include "core/game_state.h"
#include "files/written_files.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace persist {

std::string WriteWholeGame(const core::GameState& state);
// What belongs to the program and not to a game is taken from `state`.
files::Result<core::GameState> ReadWholeGame(const std::vector<files::Item>& items, std::string_view file,
                                             const core::GameState& state);

inline constexpr std::string_view kKeptGame = "Save/Continue";

class KeptGame {
public:
    explicit KeptGame(const files::WrittenFiles& files) : files_(files) {}

    files::Result<std::optional<core::GameState>> Read(const core::GameState& state) const;
    bool IsFree() const;  // whether none is kept, for certain
    // Whether somebody else has written in it.
    bool Altered() const;
    files::Failure Write(const core::GameState& state) const;
    files::Failure Remove() const;
    // Whether what was written or removed stays so: `then` is told as files::WrittenFiles::WhenKept tells.
    void WhenKept(std::function<void(const files::Failure&)> then) const
    {
        files_.WhenKept(kKeptGame, std::move(then));
    }

    // Every file that is written.
    static std::vector<std::string> Files();

private:
    const files::WrittenFiles& files_;
};

}  // namespace persist
