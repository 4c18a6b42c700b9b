// What the person at this screen does in a match: buttons, keys, clicks and drops all end here. Each does
// nothing while its control is disabled; none decides what follows from a move.
#pragma once

namespace kv {

class Dialogs;
class MatchEngine;

class MatchPerson {
 public:
  /// Belongs to the engine.
  MatchPerson(MatchEngine& engine, Dialogs& dialogs) : engine_(engine), dialogs_(dialogs) {}

  void EndTurn();
  void Stand();
  /// Hand slot 1 to 4 in all three; any other, or an empty one, does nothing.
  void PlayHandCard(int slot);
  void FirstFlip(int slot);
  void SecondFlip(int slot);
  /// The Forfeit button and the title bar's close: asks, then gives up the match; after the match it is
  /// the banner's button.
  void Forfeit();
  /// The person has given the match up.
  [[nodiscard]] bool Stopped() const { return stopped_; }

 private:
  [[nodiscard]] bool MayFlip(int slot) const;
  void AskForfeit();

  MatchEngine& engine_;
  Dialogs& dialogs_;
  bool stopped_ = false;
};

}  // namespace kv
