// The strategy that weighs its moves: it knows no match beyond its own side, so it asks an adviser for each
// turn. It is for studies and hints, and is offered in no match that counts.
#pragma once

#include "ai/Strategy.h"
#include "ai/TurnMove.h"

namespace kv {

class MoveAdviser {
 public:
  virtual ~MoveAdviser() = default;
  /// The move of the side whose turn it is, once it has drawn.
  [[nodiscard]] virtual TurnMove Advise() = 0;
};

class clsAI_Oracle final : public Strategy {
 public:
  /// `adviser` must outlive this.
  explicit clsAI_Oracle(MoveAdviser& adviser) : adviser_(adviser) {}
  void AI(AiOperations& side, int /*total*/, int /*oppTotal*/, int /*uWins*/, int /*oWins*/, bool /*uStand*/,
          bool /*oStand*/) override {
    MakeMove(side, adviser_.Advise());
  }

 private:
  MoveAdviser& adviser_;
};

}  // namespace kv
