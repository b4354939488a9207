// Other words for what a president reads often: beside a card's own text lie more, and the month decides which of
// them is read.
//
//     variants.on = true;
//     variants.Vary("M4", {&card.title, &card.result});     // the texts of Data/variants/M4, or the card's own
//
// No chance is drawn: a month that is played again reads the same. A file that cannot be used leaves the card's own
// words and is told.
#pragma once

#include "core/game_state.h"
#include "files/program_folder.h"
#include "files/result.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace core {

// Which of so many texts is this month's, 0 .. count - 1. Each block of count months reads every one of them once;
// where a block begins depends on the text's name and on what stays the same through a game and a saved game.
std::size_t TurnOf(const GameState& state, std::string_view what, std::size_t count);

// Data/variants/<what>: sets of so many texts each, at least one.
using TextSet = std::vector<std::string>;
files::Result<std::vector<TextSet>> ReadVariants(const files::ProgramFolder& folder, std::string_view what,
                                                 std::size_t textsOfASet);

class Variants {
public:
    Variants(const GameState& state, const files::ProgramFolder& folder) : state_(state), folder_(folder) {}

    bool on = false;
    std::function<void(const files::FileError&)> onTrouble;

    // Leaves the texts as they are, or replaces all of them by this month's.
    void Vary(std::string_view what, std::initializer_list<std::string*> texts) const;

private:
    const GameState& state_;
    const files::ProgramFolder& folder_;
};

}  // namespace core
