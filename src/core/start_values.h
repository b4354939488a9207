// The start of a game: every start value of the record, by level.
#pragma once

#include "core/chance.h"
#include "core/game_state.h"

namespace core {

// Draws the neighbours' strengths and the place where the officers' names begin.
void DrawNeighbours(GameState& state, Chance& chance);

// People, money, taxes and budget of the level in state.Difficulty, and what follows from them.
// Popularity and the personal army's share stay 0 until somebody counts.
void SetStartValues(GameState& state);

// Ends a game: every field is zero again, every officer's cell the number 0, the president "Anonymous" and the
// level normal. The display stays switched, and the working tables of revolutions and attempts keep what they
// hold: each is set afresh before it is read, and the sounds of attempts go on in their turn.
void ClearGame(GameState& state);

}  // namespace core
