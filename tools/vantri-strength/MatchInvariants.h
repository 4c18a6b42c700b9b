// What must hold at every step of every match, whoever plays it. A violation throws std::logic_error.
#pragma once

#include "match/HeadlessMatch.h"

namespace kv {

/// Looks at the whole state: totals equal the tables' sums, the main deck is conserved, at most nine cards
/// lie on a table, at most three sets are won.
void CheckMatchState(const MatchEngine& engine);

/// Passes a strategy's turns through and counts what it does: at most `mostCards` side cards a turn and
/// exactly one ending call.
class CheckedStrategy final : public Strategy {
 public:
  /// `inner` must outlive this.
  CheckedStrategy(Strategy& inner, int mostCards) : inner_(inner), mostCards_(mostCards) {}
  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override;

 private:
  Strategy& inner_;
  int mostCards_;
};

}  // namespace kv
