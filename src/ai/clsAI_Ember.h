// The second strategy: asks which totals one card could reach, aims for 20, 19 or 18 by its reserve of low
// cards, and stands or goes on by the total it really reached. It plays at most two cards a turn.
#pragma once

#include "ai/Strategy.h"

namespace kv {

class clsAI_Ember final : public Strategy {
 public:
  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override;

 private:
  /// The lowest total a card could make, or t + 1 if none makes t or less. Probing chooses signs.
  [[nodiscard]] static int LowestReachable(AiOperations& side, int t);
  /// The highest total of 20 or less that a card could make or that t is already; -25 if there is none.
  [[nodiscard]] static int BestReachable(AiOperations& side, int t);

  static void AimAt(AiOperations& side, int total, int oppTotal, int best);
  static void Finish(AiOperations& side, int oppTotal, int uWins);
  static void Rescue(AiOperations& side, int oppTotal);
};

}  // namespace kv
