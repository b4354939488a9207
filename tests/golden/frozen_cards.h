// A program folder for games that must go the same way for ever: its cards have the figures in cards.txt, its surnames
// are numbers. So the golden games prove the rules and not the balance.
#pragma once

#include "support/temporary_folder.h"
#include "support/test_game.h"

namespace test {

// Writes the cards and the surnames.
void FreezeCards(const TemporaryFolder& folder);

// What a president who governs by chance is given now and then, so that he governs for longer.
inline const FieldValues kGrace{{"Money", 400'000'000},
                                {"Strength[PersonalArmy]", 90},
                                {"Strength[Guerrillas]", 11},
                                {"Strength[Prisoners]", 9},
                                {"AmericanHostility", 40}};

}  // namespace test
