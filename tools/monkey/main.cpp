// quenvale-monkey: presses everything, and says when the game breaks a promise.
//
//     quenvale-monkey events 20000 8       so many events over so many seeds; 1 is the first
//     quenvale-monkey games 1000           whole games in one process
//     quenvale-monkey limits 60            every field at both limits, then so many events
//     quenvale-monkey memory 10000 1000    months and new games: what memory and open files do meanwhile
//     quenvale-monkey repeat FILE          the lines of a script, as printed after a finding
//
// A finding is printed as a short console script. Its "# damage FILE SEED" lines spoil a file, which the console
// itself passes over.
#include "console/play_folder.h"
#include "monkey/measure.h"
#include "monkey/monkey.h"
#include "monkey/run.h"
#include "monkey/shorten.h"

#include <chrono>
#include <clocale>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

int Found(const monkey::Outcome& outcome, int seed)
{
    std::printf("seed %d, event %zu: %s\n", seed, outcome.lines.size(), outcome.broken.c_str());
    std::fflush(stdout);
    for (const std::string& line : monkey::Shorten(outcome, monkey::RepeatSilently)) {
        std::printf("%s\n", line.c_str());
    }
    return 1;
}

int Events(int events, int seeds, int firstSeed)
{
    const auto begin = std::chrono::steady_clock::now();
    for (int seed = firstSeed; seed < firstSeed + seeds; ++seed) {
        const console::PlayFolder folder;
        const monkey::Outcome outcome = monkey::PlayInChild([&](const monkey::Tell& tell) {
            monkey::Run run(folder.Path());
            monkey::Monkey monkey(static_cast<std::uint64_t>(seed), monkey::Habits::Everything);
            std::optional<std::string> broken;
            for (int i = 0; i < events / seeds && !broken; ++i) {
                const std::string line = monkey.Next(run.Running(), run.Ended());
                tell(line);
                broken = run.Carry(line);
            }
            return broken;
        });
        if (!outcome.broken.empty()) {
            return Found(outcome, seed);
        }
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    std::printf("%d events over %d seeds in %.0f s, all promises kept\n", events, seeds, took.count());
    return 0;
}

int RepeatFile(const std::string& file)
{
    std::ifstream in(file);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    const monkey::Outcome outcome = monkey::Repeat(lines);
    std::printf("%zu lines: %s\n", outcome.lines.size(),
                outcome.broken.empty() ? "all is well" : outcome.broken.c_str());
    return outcome.broken.empty() ? 0 : 1;
}

}  // namespace

int main(int count, char** values)
{
    std::setlocale(LC_ALL, "C");  // the same lines everywhere
    const std::vector<std::string> words(values + 1, values + count);
    const auto number = [&words](std::size_t at, int otherwise) {
        return at < words.size() ? std::stoi(words[at]) : otherwise;
    };
    const std::string what = words.empty() ? "" : words.front();
    if (what == "events") {
        return Events(number(1, 20000), number(2, 8), number(3, 1));
    }
    if (what == "games") {
        return monkey::PlayGames(number(1, 1000));
    }
    if (what == "limits") {
        return monkey::TryLimits(number(1, 60));
    }
    if (what == "memory") {
        return monkey::WatchMemory(number(1, 10000), number(2, 1000));
    }
    if (what == "repeat" && words.size() == 2) {
        return RepeatFile(words[1]);
    }
    std::cerr
        << "expected events, games, limits, memory or repeat; see the first lines of tools/monkey/main.cpp\n";
    return 2;
}
