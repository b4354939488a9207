// Plays the game some ten thousand times and writes docs/balance.md.
//
//     quenvale-balance [--assets FOLDER] [--games N] [--seed N] [--bot NAME] [--docs FOLDER]
//
// With --bot only that one plays, and its table is printed; with --docs the page and its plots are written there.
#include "balance/report.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

namespace {

constexpr std::string_view kUsage =
    "quenvale-balance [--assets FOLDER] [--games N] [--seed N] [--bot NAME] [--docs FOLDER]\n";

void Write(const std::filesystem::path& file, const std::string& text)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

}  // namespace

int main(int count, char** words)
{
    balance::Orders orders;
    std::filesystem::path assets = "assets";
    std::filesystem::path docs;
    for (int i = 1; i < count; i += 2) {
        const std::string_view name = words[i];
        if (i + 1 == count) {
            std::cerr << kUsage;
            return 2;
        }
        const std::string value = words[i + 1];
        if (name == "--assets") {
            assets = value;
        } else if (name == "--games") {
            orders.games = std::atoi(value.c_str());
        } else if (name == "--seed") {
            orders.seed = std::strtoull(value.c_str(), nullptr, 10);
        } else if (name == "--bot") {
            orders.only = value;
        } else if (name == "--docs") {
            docs = value;
        } else {
            std::cerr << kUsage;
            return 2;
        }
    }
    const files::Result<balance::Deck> deck = balance::Deck::Read(files::ProgramFolder(assets));
    if (!deck) {
        std::cerr << deck.Error().Message() << '\n';
        return 1;
    }
    const std::vector<balance::Sample> samples = balance::PlayAll(*deck, orders);
    if (!orders.only.empty()) {
        std::cout << balance::Ends(samples);
        return samples.empty() ? 2 : 0;
    }
    const std::string page = balance::Page(samples, balance::PlayBans(*deck, orders), orders);
    if (docs.empty()) {
        std::cout << page;
        return 0;
    }
    Write(docs / "balance.md", page);
    for (const auto& [name, plot] : balance::Plots(samples)) {
        Write(docs / "balance" / (name + ".svg"), plot);
    }
    return 0;
}
