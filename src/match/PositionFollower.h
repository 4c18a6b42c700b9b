// Follows a match by what happens in it, and has its position at every move. It asks nobody.
#pragma once

#include "match/MatchObserver.h"
#include "match/MatchPosition.h"

namespace kv {

class PositionFollower final : public MatchObserver {
 public:
  /// The side decks that are known to be dealt from, by Seat, and TurnMode_Opt (2 in a network match). Before
  /// the match begins; they last until they are told anew.
  void Tell(const std::array<std::optional<clsDeckArray>, 2>& decks, int turnMode);
  void Happened(const MatchEvent& event) override;
  /// Holds as a position from a draw until that turn is closed.
  [[nodiscard]] const MatchPosition& position() const { return position_; }

 private:
  void Note(const event::MatchBegun& begun);
  void Note(const event::SetBegun& begun);
  void Note(const event::Drew& drew);
  void Note(const event::Flipped& flipped);
  void Note(const event::Played& played);
  void Note(const event::EndedTurn&) {}
  void Note(const event::Stood& stood) { position_.side(stood.seat).stood = true; }
  void Note(const event::SetDecided&) {}
  void Note(const event::MatchDecided&) {}
  void Note(const event::Booked&) {}
  void Note(const event::Forfeited&) {}
  void Note(const event::PeerGone&) {}

  MatchPosition position_;
};

}  // namespace kv
