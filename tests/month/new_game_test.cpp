#include "core/start_values.h"

#include "core/society.h"
#include "support/test_game.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using core::GameState;

TEST(NewGame, DrawsTheNeighboursAndSaysWelcome)
{
    test::TestGame game;
    game.Click("frmlogo");
    game.Tell({0, 0, 0.5, 0.99999999});
    game.Click("frmStart.Command1");
    game.Expect({{"HermositaStrength", 60}, {"FerazStrength", 73}, {"DescalzaStrength", 85}});
    const std::vector<core::Chance::Drawn> drawn = game.TakeDrawn();
    ASSERT_EQ(drawn.size(), 70U);
    EXPECT_EQ(drawn[0].n, 87);
    EXPECT_EQ(drawn[0].value, 1) << "where the names begin";
    game.Expect({{"ChiefNameSeed", 12}});
    EXPECT_EQ(
        game.Banner(),
        "Mr.President welcome to your office. What you see is a computer program especially designed from "
        "our Secret Police department, to keep you informed at any time and help you tyrannize this country "
        "without having to see blood, deaths and other messy stuff. Good luck!  ");
}

}  // namespace
