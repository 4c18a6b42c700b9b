// A computer opponent: asked once in each of its turns, after its main-deck card lies on the table.
// It keeps nothing between turns and touches the match only through AiOperations.
#pragma once

#include "ai/AiOperations.h"

namespace kv {

class Strategy {
 public:
  virtual ~Strategy() = default;
  /// Plays one turn of the side behind `side`, whose total is `total`. oppTotal, uWins and uStand are the
  /// other side's total, sets won (0 to 3) and whether it has stood; oWins and oStand are the strategy's own.
  /// Closes the turn with exactly one AI_EndTurn or AI_Stand.
  virtual void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
                  bool oStand) = 0;
};

}  // namespace kv
