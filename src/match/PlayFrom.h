// A match played to its end from a position, by the real engine and with nobody watching: what simulations,
// hints and reviews are made of.
#pragma once

#include "ai/TurnMove.h"
#include "match/MatchPosition.h"
#include "match/NobodyWatches.h"

namespace kv {

/// The two strategies that play on; both must outlive the match.
struct PlaysOn {
  Strategy& player;
  Strategy& opponent;
};

/// Plays many matches from positions with one engine. `random` must outlive it.
class MatchFrom {
 public:
  MatchFrom(PlaysOn strategies, int turnMode, Random& random);
  MatchFrom(MatchFrom&&) = delete;
  /// The side to move makes `first`, if there is one; then the strategies play. Gives the match's winner.
  Seat Play(const MatchPosition& position, const TurnMove* first);
  /// The same to the end of the set, and no further: how likely the side to move then is to win the match.
  /// That is certain when the set decides it, and an estimate otherwise.
  double PlaySet(const MatchPosition& position, const TurnMove* first);

 private:
  void Begin(const MatchPosition& position, const TurnMove* first);

  /// Makes one given move, then plays as another strategy does.
  class Opening final : public Strategy {
   public:
    explicit Opening(Strategy& then) : then_(then) {}
    void BeginWith(const TurnMove* first) { first_ = first; }
    void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
            bool oStand) override;

   private:
    Strategy& then_;
    const TurnMove* first_ = nullptr;
  };

  std::array<Opening, 2> openings_;
  clsGame game_;
  NoBook book_{game_};
  const MatchWatch nobody_;
  NobodyWatches screen_{book_, nobody_};
  MatchNetwork network_;
  MatchEngine engine_;
};

/// One match from `position`. Equal random numbers give equal matches.
[[nodiscard]] Seat PlayFrom(const MatchPosition& position, const TurnMove& first, PlaysOn strategies,
                            Random& random);

}  // namespace kv
