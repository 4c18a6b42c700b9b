// A match in the middle of a turn, as a plain value: the side to move has drawn its card and not yet closed
// its turn. A match can be played on from it; it knows no engine.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "cards/clsDeckArray.h"
#include "match/MatchState.h"

namespace kv {

struct PositionSide {
  std::vector<CardCode> table;
  std::array<CardCode, kHandSize> hand;  // a played slot is empty, a card that nobody knows FaceDown
  std::optional<clsDeckArray> deck;      // the ten side cards that the hand was dealt from, when known
  std::vector<CardCode> played;          // the side cards of this match so far, as they were played
  int setWins = 0;                       // 0 to 2
  bool stood = false;

  [[nodiscard]] int Total() const {
    int total = 0;
    for (const CardCode& card : table) total += card.cardValue();
    return total;
  }
};

struct MatchPosition {
  std::array<PositionSide, 2> sides;     // by Seat
  std::array<std::uint8_t, 11> drawn{};  // [1] to [10]: how often the main-deck card was drawn in this set
  Seat turn = Seat::Player;
  Seat startsNext = Seat::Player;  // who begins the next set
  int turnMode = 2;                // TurnMode_Opt: 2 changes who begins from set to set
  int set = 1;                     // its number; tied sets count
  bool cardPlayed = false;         // the person to move has played its card of this turn

  [[nodiscard]] PositionSide& side(Seat seat) { return sides[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] const PositionSide& side(Seat seat) const { return sides[static_cast<std::size_t>(seat)]; }
  [[nodiscard]] const PositionSide& own() const { return side(turn); }
  [[nodiscard]] const PositionSide& other() const { return side(OtherSeat(turn)); }
};

}  // namespace kv
