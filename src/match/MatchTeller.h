// The engine's end of the stream of events: a rule says in one line what has just happened, and the event is
// made from what the match shows, if somebody hears it. It changes nothing.
#pragma once

#include <vector>

#include "match/MatchObserver.h"
#include "match/MatchShown.h"

namespace kv {

class MatchTeller {
 public:
  /// Both must outlive this.
  MatchTeller(const MatchShown& shown, const clsGame& game) : shown_(shown), game_(game) {}

  /// Null: nobody hears anything. It must outlive the match.
  void setObserver(MatchObserver* observer) { observer_ = observer; }
  [[nodiscard]] bool heard() const { return observer_ != nullptr; }

  void MatchBegun() const;
  void SetBegun(Seat starts);
  void Drew(Seat seat) const;
  /// Hand slot 1 to 4 of the person.
  void Flipped(int slot) const;
  /// `table` is the side's as it was before; it may be empty when the card turns none.
  void Played(Seat seat, int slot, const CardCode& card, const std::vector<CardCode>& table) const {
    if (heard()) TellPlayed(seat, slot, card, table);
  }
  /// A turn that ends over 20 is the side's last.
  void EndedTurn(Seat seat) const {
    if (heard()) TellEnd(seat);
  }
  void Stood(Seat seat) const {
    if (heard()) TellStood(seat);
  }
  void SetDecided(const SetDecision& decision) const;
  /// `more`: sets that the winner has won besides those that are shown.
  void MatchDecided(Seat winner, int more = 0) const;
  void Tell(const MatchEvent& event) const;

 private:
  void TellPlayed(Seat seat, int slot, const CardCode& card, const std::vector<CardCode>& table) const;
  void TellEnd(Seat seat) const;
  void TellStood(Seat seat) const;
  [[nodiscard]] event::Both Totals() const { return {shown_.sides[0].total, shown_.sides[1].total}; }
  [[nodiscard]] event::Both SetWins() const { return {shown_.sides[0].setWins, shown_.sides[1].setWins}; }

  const MatchShown& shown_;
  const clsGame& game_;
  MatchObserver* observer_ = nullptr;
  int set_ = 0;  // the one that is played, from 1 on
};

}  // namespace kv
