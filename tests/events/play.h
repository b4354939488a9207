// Small steps of play that the tests of cards and events have in common.
#pragma once

#include "support/test_game.h"

#include <string>
#include <string_view>

namespace test {

// The r with which a draw of 1 .. sides gives this value.
constexpr double Die(int value, int sides)
{
    return (value - 0.5) / sides;
}

// A card whose nineteen numbers are all the same.
std::string FlatCard(int figure = 0);

// Replaces all action and request cards by ones that change nothing, so that a test sees built-in effects.
void WriteBlankCards(const TemporaryFolder& folder);

// Menu, button, "Proceed", and a new chief where one is asked for.
void TakeAction(TestGame& game, int action, Where where = Where::Here());
// Picks the first candidate left if a choice of chiefs is open.
void PickChief(TestGame& game, Where where = Where::Here());

// Nobody has a reason to rise, and the treasury lasts: what happens is what the dice say.
void CalmDown(TestGame& game);

// Ends the month with these dice and lets its event begin.
void EndMonth(TestGame& game, std::initializer_list<double> draws, Where where = Where::Here());

}  // namespace test
