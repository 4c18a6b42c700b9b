// Positions by their cards: what lies, who holds what, the sets won. It fills in what follows from them.
#pragma once

#include <cstdlib>
#include <vector>

#include "match/MatchPosition.h"

namespace kv::test {

struct SideCards {
  std::vector<const char*> table;
  std::vector<const char*> hand{};
  int setWins = 0;
  bool stood = false;
};

/// The player is to move. Main-deck cards on the tables have left the main deck.
[[nodiscard]] inline MatchPosition PositionOf(const SideCards& player, const SideCards& opponent,
                                              Seat turn = Seat::Player) {
  MatchPosition position;
  position.turn = turn;
  for (const Seat seat : {Seat::Player, Seat::Opponent}) {
    const SideCards& cards = seat == Seat::Player ? player : opponent;
    PositionSide& side = position.side(seat);
    for (const char* code : cards.table) {
      const CardCode& card = side.table.emplace_back(code);
      if (card.type() == CardType::MainDeck) ++position.drawn.at(static_cast<std::size_t>(card.number()));
    }
    for (std::size_t i = 0; i < cards.hand.size(); ++i) side.hand.at(i) = CardCode(cards.hand[i]);
    side.setWins = cards.setWins;
    side.stood = cards.stood;
  }
  return position;
}

}  // namespace kv::test
