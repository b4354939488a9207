// Quenvale, the program with the window. The whole game is in class Game; SDL is in platform.
#include "app/game.h"
#include "platform/program.h"

#include <charconv>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace {

std::uint64_t TimeOfDay()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

// The dice fall by the clock. QUENVALE_SEED=7 lets them fall the same way each time: for whoever tells of a fault,
// and for the tests.
core::Chance MakeChance()
{
    core::Chance chance(TimeOfDay);
    if (const char* value = std::getenv("QUENVALE_SEED")) {
        const std::string_view word = value;
        std::uint64_t seed = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), seed);
        if (error == std::errc{} && end == word.data() + word.size()) {
            chance.Seed(seed);
        } else {
            std::cerr << "quenvale: QUENVALE_SEED expects a whole number, not \"" << word
                      << "\"; the dice fall as usual\n";
        }
    }
    return chance;
}

}  // namespace

int main()
{
    std::setlocale(LC_ALL, "");
    platform::SdlHost host;
    Game game(host, files::ProgramFolder::Find(), MakeChance());
    game.Start();
    return platform::Run(game.GetDesktop(), host, game.Folder());
}
