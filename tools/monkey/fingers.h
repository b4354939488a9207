// Somebody who presses anything at the window. His lines follow from his seed and from what is shown; carrying one out
// puts into SDL's queue what a mouse, a keyboard, a gamepad or the window manager would.
//
//     Fingers fingers(7);
//     CarryOut(fingers.Next(game), game, folder);      // "tap 400 300", "key 64 F", "size 640 480", "wait 3000" ...
#pragma once

#include "app/game.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace monkey {

class Fingers {
public:
    explicit Fingers(std::uint64_t seed) { dice_.Seed(seed); }

    std::string Next(Game& game);

private:
    std::size_t Pick(std::size_t count);
    template <class List> const auto& OneOf(const List& list) { return list[Pick(list.size())]; }
    std::string Anywhere(Game& game);
    std::string OnWhatAnswers(Game& game);
    std::string Drag(Game& game);
    std::string Move(Game& game);
    std::string Key(Game& game);
    std::string Text(Game& game);
    std::string Wait(Game& game);
    std::string Window(Game& game);
    std::string Pad(Game& game);
    std::string Spoil(Game& game);

    core::Chance dice_;
};

// On the one window, between two events of the loop. A line that says nothing does nothing.
void CarryOut(const std::string& line, Game& game, const std::filesystem::path& folder);

}  // namespace monkey
