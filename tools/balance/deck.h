// All cards, requests and offers of a program folder, read once.
#pragma once

#include "core/cards.h"
#include "files/program_folder.h"
#include "files/result.h"

#include <array>
#include <string>
#include <vector>

namespace balance {

inline constexpr std::size_t kActions = 26;  // 1 .. 25

struct Deck {
    files::ProgramFolder folder;
    std::array<core::Effects, kActions> actions{};
    std::array<core::Effects, 8> requests{};  // 1 .. 7
    std::array<core::Effects, 8> offers{};    // 1 .. 7, by faction

    static files::Result<Deck> Read(const files::ProgramFolder& folder);
};

}  // namespace balance
