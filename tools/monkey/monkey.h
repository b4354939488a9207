// Somebody who presses whatever is there. His lines are a console script, and follow from his seed and from what is
// shown.
//
//     Monkey monkey(7, Habits::Everything);
//     run.Carry(monkey.Next(run.Running(), run.Ended()));
#pragma once

#include "app/game.h"

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

namespace monkey {

enum class Habits {
    Everything,  // also starts again, paints at odd sizes, saves, loads and spoils files
    Governs,     // only what leads through a game: clicks on what answers, and patience
};

class Monkey {
public:
    Monkey(std::uint64_t seed, Habits habits) : habits_(habits) { dice_.Seed(seed); }

    std::string Next(Game* game, bool ended);
    // Before anything else; the game's own dice fall by this seed.
    void Begin(std::uint64_t seed);

private:
    std::size_t Pick(std::size_t count);
    template <class List> const auto& OneOf(const List& list) { return list[Pick(list.size())]; }
    std::string ClickOnWhatAnswers(Game& game);
    std::string ClickAnywhere(Game& game);
    std::string Hover(Game& game);
    std::string Type(Game& game);
    std::string PressKey(Game& game);
    std::string Wait(Game& game);
    std::string NextMonth(Game& game);
    std::string Govern(Game& game);
    std::string Save(Game& game);
    std::string Load(Game& game);
    std::string Spoil(Game& game);
    std::string Paint(Game& game);
    std::string Switch(Game& game);
    std::string StartAgain(Game& game);
    std::string Plan(const std::vector<std::string>& lines);

    Habits habits_;
    core::Chance dice_;
    std::deque<std::string> planned_;
};

}  // namespace monkey
