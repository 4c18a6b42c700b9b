#include "ai/TurnMove.h"

namespace kv {

bool SameMove(const TurnMove& a, const TurnMove& b) {
  return a.stands == b.stands && (a.slot == 0) == (b.slot == 0) && a.card.type() == b.card.type() &&
         a.card.cardValue() == b.card.cardValue();
}

void MakeMove(AiOperations& side, const TurnMove& move) {
  if (move.slot != 0) {
    side.SetHandCode(move.slot, move.card);
    side.AI_PlayCard(move.slot);
  }
  if (move.stands) {
    side.AI_Stand();
  } else {
    side.AI_EndTurn();
  }
}

}  // namespace kv
