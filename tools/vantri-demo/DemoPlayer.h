// Plays a match on the match screen as a person would: looks at the screen, then moves the pointer or presses
// a key. It knows nothing that the screen does not show.
#pragma once

#include <string>

#include "match/frmGame.h"
#include "platform/Scheduler.h"
#include "support/ScreenHand.h"

namespace kv {

class DemoPlayer {
 public:
  /// Pictures go into `folder`, which must exist.
  DemoPlayer(frmGame& screen, const clsGame& game, Scheduler& scheduler, std::string folder);

  /// Plays until the match is booked and its banner stands; false when it comes to a standstill.
  [[nodiscard]] bool PlayMatch();
  /// How many pictures were left.
  [[nodiscard]] int pictures() const { return pictures_; }

 private:
  void TakeTurn();
  /// Plays the hand card that brings the total nearest to 20 without passing it, when that is worth a card.
  void UseHand();
  [[nodiscard]] int HandCardFor(int total) const;
  void PlayCard(int slot);
  void Continue();
  void Wait(int milliseconds);
  [[nodiscard]] int Total(Seat seat);
  void TakePicture(const std::string& what);

  frmGame& screen_;
  const clsGame& game_;
  Scheduler& scheduler_;
  std::string folder_;
  test::ScreenHand hand_;
  Lifetime lifetime_;
  int turn_ = 0;
  int pictures_ = 0;
};

}  // namespace kv
