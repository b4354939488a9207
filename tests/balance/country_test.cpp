// The bots' country: what the report's figures rest on.
#include "balance/country.h"

#include "balance/bots.h"
#include "balance/play.h"
#include "balance/sample.h"
#include "support/test_game.h"

#include <gtest/gtest.h>

namespace {

constexpr int kMonths = 8;

balance::Deck ReadDeck()
{
    const auto deck = balance::Deck::Read(files::ProgramFolder(test::Assets()));
    EXPECT_TRUE(deck);
    return *deck;
}

// A future that is lived in a copy, whatever was played there before, is the one that would have come.
TEST(BalanceCountry, GoesOnElsewhereAsItWouldHaveHere)
{
    const balance::Deck deck = ReadDeck();
    balance::Country here(deck);
    balance::Country there(deck);
    const auto steward = balance::MakeSteward({.sellFrom = 6, .leaveFrom = 10, .provoke = true});
    int compared = 0;
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        SCOPED_TRACE(seed);
        here.Begin(static_cast<std::int64_t>(seed % 3), seed);
        Play(here, *steward, kMonths);
        const balance::Country::Moment moment = here.Now();
        if (here.ending != balance::Ending::Stopped) {
            continue;
        }
        here.Put(moment, *steward);
        Play(here, *steward, kMonths);
        there.Put(moment, *steward);
        Play(there, *steward, kMonths);
        EXPECT_EQ(test::Changed(here.state, there.state), std::vector<std::string>());
        EXPECT_EQ(here.ending, there.ending);
        ++compared;
    }
    EXPECT_GE(compared, 10);
}

// The page must not depend on the machine, and its bots must differ in what they are worth.
TEST(BalanceSample, IsTheSameOnAnyNumberOfCores)
{
    const balance::Deck deck = ReadDeck();
    std::vector<double> points;
    for (const balance::Kind& kind : balance::Kinds()) {
        if (kind.weight > 1) {
            continue;
        }
        const balance::Sample one = PlayMany(deck, kind, core::kNormal, {.games = 40, .threads = 1});
        const balance::Sample three = PlayMany(deck, kind, core::kNormal, {.games = 40, .threads = 3});
        EXPECT_EQ(one.MeanPoints(), three.MeanPoints()) << kind.name;
        EXPECT_EQ(one.MonthsAt(1), three.MonthsAt(1)) << kind.name;
        points.push_back(one.MeanPoints());
    }
    EXPECT_LT(points[1], points[2]);  // random, careful
    EXPECT_LT(points[2], points[3]);  // careful, skilled
}

}  // namespace
