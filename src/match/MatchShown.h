// Everything that a match screen shows, as one plain value. The engine writes it and tells what has changed;
// a screen, a speech or a test only reads it, and must never work out for itself what stands in it.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "cards/clsDeckArray.h"
#include "match/MatchState.h"

namespace kv {

class clsGame;

struct MatchSide {
  MatchSide() { table.reserve(kTableSize); }
  std::vector<CardCode> table;
  std::shared_ptr<const clsDeckArray> hand;  // as it is played, not a copy; slots 1 to 4
  int total = 0;
  int setWins = 0;  // 0 to 3
  bool stood = false;
  bool light = false;  // the turn light
};

struct MatchShown {
  GameStep step = GameStep::None;
  std::array<MatchSide, 2> sides;  // by Seat
  MatchControls controls;
  MatchBanner banner;
  std::string title;  // of the window
  std::string wager;

  [[nodiscard]] MatchSide& side(Seat seat) { return sides[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] const MatchSide& side(Seat seat) const { return sides[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] const std::vector<CardCode>& Table(Seat seat) const { return side(seat).table; }
  [[nodiscard]] bool TableFull(Seat seat) const { return side(seat).table.size() == kTableSize; }
  [[nodiscard]] int Total(Seat seat) const { return side(seat).total; }
  [[nodiscard]] int SetWins(Seat seat) const { return side(seat).setWins; }
  [[nodiscard]] bool Stood(Seat seat) const { return side(seat).stood; }
  [[nodiscard]] bool Light(Seat seat) const { return side(seat).light; }
  [[nodiscard]] const CardCode& HandCard(Seat seat, int slot) const { return side(seat).hand->Value(slot); }
};

/// "Arcade Match" and so on, by the mode.
[[nodiscard]] std::string MatchTitle(const clsGame& game);
/// "Wager: 10", in a "Network" match with the bonus on a second line.
[[nodiscard]] std::string WagerText(const clsGame& game);

}  // namespace kv
