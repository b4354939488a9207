// What holds after every event, whoever pressed whatever.
#pragma once

#include "app/game.h"

#include <cstdint>
#include <optional>
#include <string>

namespace monkey {

class Promises {
public:
    // The first that does not hold, as "promise: what is the case"; none when all do.
    std::optional<std::string> Broken(Game& game);

private:
    std::optional<std::string> MonthClosesAtLast(Game& game);
    std::optional<std::string> NumbersAgree(Game& game);

    std::int64_t months_ = 0;
    int openFor_ = 0;  // events
};

}  // namespace monkey
