// A president who lives by clicks that follow from one number alone: what he presses, and so what happens.
//
//     test::Player player(game, 7);
//     player.GovernAMonth();          // taxes, actions, reports, "Next month", and every answer until it is over
//     player.Fallen();                // the hall of fame stands before him
//
// He presses what the rules of the game put before him and nothing else, so that a new screen beside them does not
// change his life.
#pragma once

#include "support/test_game.h"

#include <cstdint>
#include <functional>
#include <string>

namespace test {

class Player {
public:
    Player(TestGame& game, std::uint64_t seed) : game_(game) { own_.Seed(seed); }

    void GovernAMonth();
    std::function<void()> onPress;  // after each press, and each half second of a pause
    bool Fallen() { return game_.Shown("frmTop102"); }

private:
    int Pick(int count) { return static_cast<int>(own_.Draw(count, 0)); }
    bool Often(int ofTen) { return Pick(10) < ofTen; }
    void Press(const std::string& control);
    void Passed() const;

    void SetTaxes();
    void Bank();
    void Act();
    void ReadReports();
    bool Answer();
    void AskForHelp();
    void LetTimersFire();
    void PickChief(const std::string& form);

    TestGame& game_;
    core::Chance own_;  // his own dice, not the game's
};

}  // namespace test
