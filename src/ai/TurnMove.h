// One turn's move as a plain value: a hand card with its chosen sign or none, and how the turn is closed.
#pragma once

#include "ai/AiOperations.h"

namespace kv {

struct TurnMove {
  int slot = 0;         // hand slot 1 to 4; 0: no card is played
  CardCode card;        // as it is played, its sign chosen; empty without a card
  bool stands = false;  // otherwise the turn ends
};

/// The same card with the same sign, whatever its slot and spelling, and the same close.
[[nodiscard]] bool SameMove(const TurnMove& a, const TurnMove& b);

/// Plays the move and closes the turn.
void MakeMove(AiOperations& side, const TurnMove& move);

}  // namespace kv
