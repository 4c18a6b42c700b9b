// Plays a match on the match screen as a person would: looks at the screen, then moves the pointer or presses
// a key. It knows nothing that the screen does not show.
#pragma once

#include "DemoPerson.h"
#include "match/frmGame.h"
#include "support/ScreenHand.h"

namespace kv {

class DemoPlayer {
 public:
  /// The match screen must be open.
  explicit DemoPlayer(DemoPerson& person);

  /// Plays until the match is booked and its banner stands. DemoFailure when it comes to a standstill.
  void PlayMatch();
  /// Uses the banner's button.
  void Continue();

 private:
  void TakeTurn();
  /// Plays the hand card that brings the total nearest to 20 without passing it, when that is worth a card.
  void UseHand();
  [[nodiscard]] int HandCardFor(int total) const;
  void PlayCard(int slot);
  [[nodiscard]] int Total(Seat seat);

  DemoPerson& person_;
  frmGame& screen_;
  const clsGame& game_;
  test::ScreenHand hand_;
  int turn_ = 0;
  // A picture of each is enough.
  bool setSeen_ = false;
  bool cardSeen_ = false;
};

}  // namespace kv
