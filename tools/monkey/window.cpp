// quenvale-monkey-window: presses everything at the real window, and says when the game breaks a promise.
//
//     quenvale-monkey-window 100000 100       so many events over so many seeds
//     quenvale-monkey-window repeat FILE      the lines of a script, as printed after a finding
//
// Without DISPLAY the window is one that nobody sees. The manual's viewer is not started.
#include "app/game.h"
#include "app/kept_settings.h"
#include "console/play_folder.h"
#include "monkey/fingers.h"
#include "monkey/promises.h"
#include "monkey/shorten.h"
#include "platform/desktop/program.h"

#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

class Host : public platform::SdlHost {
public:
    void OpenDocument(std::string_view /*file*/, std::string_view /*chapter*/) override {}
};

// Nothing when the lines are at an end.
using NextLine = std::function<std::optional<std::string>(Game& game)>;

// What the player has lies in the folder; a voice is not looked for.
void MoveInto(const std::filesystem::path& folder)
{
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        setenv(name, folder.c_str(), 1);
    }
    setenv("SPEECHD_ADDRESS", "unix_socket:/nonexistent", 1);
    setenv("SDL_AUDIODRIVER", "dummy", 0);
    if (std::getenv("DISPLAY") == nullptr) {
        setenv("SDL_VIDEODRIVER", "dummy", 0);
    }
}

// The program from its start to its end. Returns what broke; `more` tells whether it is to be started again.
std::optional<std::string> PlayOnce(const std::filesystem::path& folder, const NextLine& next,
                                    const monkey::Tell& tell, bool& more)
{
    Host host;
    core::Chance chance;
    chance.Seed(1);
    Game game(host, files::ProgramFolder(folder), std::move(chance));
    host.place = UseSettings(game);
    game.Autosave(true);
    game.Start();
    monkey::Promises promises;
    std::optional<std::string> broken;
    host.onIdle = [&] {
        broken = broken ? broken : promises.Broken(game);
        const std::optional<std::string> line = broken ? std::nullopt : next(game);
        more = line.has_value();
        if (line) {
            tell(*line);
        }
        monkey::CarryOut(line.value_or("close"), game, folder);
    };
    const int status = platform::Run(game.GetDesktop(), game.GetNarrator(), host, game.Folder());
    if (status != 0) {
        return "the window stays: the program ended with " + std::to_string(status);
    }
    return broken;
}

monkey::Outcome Play(const NextLine& next, bool silent = false)
{
    const console::PlayFolder folder;
    return monkey::PlayInChild(
        [&](const monkey::Tell& tell) {
            MoveInto(folder.Path());
            std::optional<std::string> broken;
            for (bool more = true; more && !broken;) {
                broken = PlayOnce(folder.Path(), next, tell, more);
            }
            return broken;
        },
        silent);
}

monkey::Outcome Repeat(const std::vector<std::string>& lines, bool silent)
{
    return Play(
        [&lines, at = std::size_t{0}](Game& /*game*/) mutable {
            return at < lines.size() ? std::optional(lines[at++]) : std::nullopt;
        },
        silent);
}

int Events(int events, int seeds)
{
    const auto begin = std::chrono::steady_clock::now();
    for (int seed = 1; seed <= seeds; ++seed) {
        monkey::Fingers fingers(static_cast<std::uint64_t>(seed));
        const monkey::Outcome outcome = Play([&, left = events / seeds](Game& game) mutable {
            return left-- > 0 ? std::optional(fingers.Next(game)) : std::nullopt;
        });
        if (!outcome.broken.empty()) {
            std::printf("seed %d, event %zu: %s\n", seed, outcome.lines.size(), outcome.broken.c_str());
            std::fflush(stdout);
            const auto again = [](const std::vector<std::string>& lines) { return Repeat(lines, true); };
            for (const std::string& line : monkey::Shorten(outcome, again)) {
                std::printf("%s\n", line.c_str());
            }
            return 1;
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("%d events at the window over %d seeds in %.0f s, all promises kept\n", events, seeds,
                took.count());
    return 0;
}

int RepeatFile(const std::string& file)
{
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    const monkey::Outcome outcome = Repeat(lines, false);
    std::printf("%zu lines: %s\n", outcome.lines.size(),
                outcome.broken.empty() ? "all is well" : outcome.broken.c_str());
    return outcome.broken.empty() ? 0 : 1;
}

}  // namespace

int main(int count, char** values)
{
    std::setlocale(LC_ALL, "C.UTF-8");
    const std::vector<std::string> words(values + 1, values + count);
    if (words.size() != 2) {
        std::cerr << "expected how many events and seeds, or repeat and a file\n";
        return 2;
    }
    return words[0] == "repeat" ? RepeatFile(words[1]) : Events(std::stoi(words[0]), std::stoi(words[1]));
}
