// What the person at this screen does in a match: buttons, keys, clicks and drops all end here. Each does
// nothing while its control is disabled; none decides what follows from a move.
#pragma once

#include "match/SideOperations.h"

namespace kv {

class Dialogs;
class MatchEngine;

class MatchPerson {
 public:
  /// Belongs to the engine.
  MatchPerson(MatchEngine& engine, Dialogs& dialogs)
      : engine_(engine), dialogs_(dialogs), operations_(engine, Seat::Player) {}

  /// Lets a strategy play instead (simulations); it must outlive the match. Null: the person plays.
  void setStrategy(Strategy* strategy) { strategy_ = strategy; }
  /// The person's turn is open: whoever plays instead is asked.
  void Ask();

  void EndTurn();
  void Stand();
  /// Hand slot 1 to 4 in all three; any other, or an empty one, does nothing.
  void PlayHandCard(int slot);
  void FirstFlip(int slot);
  void SecondFlip(int slot);
  /// The Forfeit button and the title bar's close: asks, then gives up the match; after the match it is
  /// the banner's button.
  void Forfeit();
  /// The person leaves the game for good: the match is lost here and now, without a banner.
  void LoseByLeaving();
  /// The person has given the match up.
  [[nodiscard]] bool Stopped() const { return stopped_; }

 private:
  [[nodiscard]] bool MayFlip(int slot) const;
  void AskForfeit();

  MatchEngine& engine_;
  Dialogs& dialogs_;
  SideOperations operations_;
  Strategy* strategy_ = nullptr;
  bool stopped_ = false;
};

}  // namespace kv
