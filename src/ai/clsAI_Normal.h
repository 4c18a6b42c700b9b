// The standard strategy: a list of special cases tried in order. It plays at most one card a turn.
#pragma once

#include <cstdint>

#include "ai/Strategy.h"

namespace kv {

class clsAI_Normal final : public Strategy {
 public:
  /// What follows the card that brought a lost-looking total back to 20 or less while the human needs one
  /// more set (rule 8.2) when the table is not full. Measured with vantri-strength; docs/strength.md has the
  /// table.
  enum class AfterRescue : std::uint8_t { EndTurn, Stand, StandWhenAhead };

  explicit clsAI_Normal(AfterRescue afterRescue = AfterRescue::StandWhenAhead) : afterRescue_(afterRescue) {}

  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override;

 private:
  AfterRescue afterRescue_;
};

}  // namespace kv
