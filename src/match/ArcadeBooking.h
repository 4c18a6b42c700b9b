// Books the matches of an arcade run: the stake comes back twice after a win and stays lost after a loss.
#pragma once

#include "match/MatchPartners.h"
#include "match/clsGame.h"

namespace kv {

class ArcadeBooking final : public MatchBooking {
 public:
  /// Both must outlive the booking. The stake of `game` was taken from its credits when it was settled.
  ArcadeBooking(clsGame& game, clsPlayer& player) : game_(game), player_(player) {}

  void SaveWin() override;
  void SaveLoss() override;

 private:
  /// The match is booked: no stake is open any more, and the player file is written.
  void Close();

  clsGame& game_;
  clsPlayer& player_;
};

}  // namespace kv
