// Thirty whole games against what they were: ten seeds on three levels, sixty months or as many as the president
// has. Every tenth month, and at the end, the whole saved record must be the one in games.txt.
//
// The games are played with cards and surnames of their own (cards.txt), so that they prove the rules and not the
// balance. `tools/golden` shows what differs as a table; `tools/golden --renew` writes games.txt anew.
#include "golden/frozen_cards.h"
#include "golden/player.h"
#include "persist/saved_game.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

namespace {

using test::Player;
using test::TestGame;

constexpr int kSeeds[] = {163, 237, 42, 150, 214, 254, 20, 100, 252, 280};
constexpr int kMonths = 60;
constexpr int kEvery = 10;
// Who governs by chance does not govern for long, so only the odd seeds live as they can. The others find their
// means restored every second month, and those that four divides every month.
bool IsHelped(int seed, int month)
{
    return seed % 4 == 0 || (seed % 2 == 0 && month % 2 == 1);
}
constexpr std::string_view kLevels[] = {"easy", "normal", "hard"};

// What games.txt holds: by "seed level month" the saved values in their order.
using Records = std::map<std::string, std::vector<std::string>>;

std::vector<std::string> Split(const std::string& text, const std::string& ends)
{
    std::vector<std::string> parts;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(ends, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(ends, end);
    }
    return parts;
}

Records ReadRecords()
{
    Records records;
    std::ifstream file("games.txt");
    for (std::string line; std::getline(file, line);) {
        const std::size_t colon = line.find(": ");
        records[line.substr(0, colon)] = Split(line.substr(colon + 2), ",");
    }
    return records;
}

void WriteRecords(const Records& records)
{
    std::ofstream file("games.txt");
    for (const auto& [key, values] : records) {
        file << key << ':';
        const char* between = " ";
        for (const std::string& value : values) {
            file << std::exchange(between, ",") << value;
        }
        file << '\n';
    }
}

Records PlayOne(int seed, core::Level level)
{
    const test::TemporaryFolder folder;
    test::FreezeCards(folder);
    TestGame game{files::ProgramFolder(folder.Path())};
    game.game.GetChance().Seed(static_cast<std::uint64_t>(seed));
    game.StartGame(level);
    Player player(game, static_cast<std::uint64_t>(1000 * seed + level));
    Records records;
    const auto keep = [&](const std::string& when) {
        records[std::to_string(seed) + " " + std::string(kLevels[level]) + " " + when] =
            Split(persist::WriteSavedGame(game.State()), "\r\n");
    };
    for (int month = 1; month <= kMonths && !player.Fallen(); ++month) {
        if (IsHelped(seed, month)) {
            game.Set(test::kGrace);
        }
        player.GovernAMonth();
        if (month % kEvery == 0 && !player.Fallen()) {
            keep(std::to_string(month));
        }
    }
    keep("end");
    return records;
}

// A row a value that differs: game and month, field, what it was, what it is.
std::string Differences(const Records& before, const Records& now)
{
    std::ostringstream rows;
    for (const auto& [key, values] : now) {
        const auto found = before.find(key);
        if (found == before.end() || found->second.size() != values.size()) {
            rows << key << " | the whole record | not there |\n";
            continue;
        }
        for (std::size_t i = 0; i < values.size(); ++i) {
            if (found->second[i] != values[i]) {
                rows << key << " | " << persist::SavedElements()[i].Name() << " | " << found->second[i]
                     << " | " << values[i] << '\n';
            }
        }
    }
    return rows.str();
}

TEST(Golden, GamesGoAsTheyDid)
{
    const Records before = ReadRecords();
    Records now;
    for (const int seed : kSeeds) {
        for (const core::Level level : {core::kHard, core::kNormal, core::kEasy}) {
            now.merge(PlayOne(seed, level));
        }
    }
    if (const std::string rows = Differences(before, now); !rows.empty()) {
        ADD_FAILURE() << "game and month | field | was | is\n" << rows;
    }
    EXPECT_EQ(before.size(), now.size()) << "some games lasted longer or shorter";
    if (std::getenv("QUENVALE_RENEW_GOLDEN") != nullptr) {
        WriteRecords(now);
    }
}

}  // namespace
