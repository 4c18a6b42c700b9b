// The match screen told in words: the whole table, or the hand, whenever the person asks for it.
#include "cards/CardFaces.h"
#include "match/frmGame.h"

namespace kv {
namespace {

void Add(std::string& list, const std::string& more) {
  list += (list.empty() ? "" : ", ") + more;
}

std::string Cards(std::span<const CardCode> table) {
  std::string cards;
  for (const CardCode& card : table) Add(cards, SpokenCard(card));
  return cards.empty() ? "no cards" : cards;
}

}  // namespace

std::string frmGame::SpokenTable() const {
  const auto side = [this](const std::string& whose, Seat seat) {
    return whose + ": " + Cards(engine_.shown().Table(seat)) + ", total " +
           std::to_string(engine_.shown().Total(seat)) + ". ";
  };
  int left = 0;
  for (int slot = 1; slot <= kHandSize; ++slot) {
    if (!(engine_.shown().HandCard(Seat::Opponent, slot) == EmptiedSlot())) ++left;
  }
  std::string told = side("Your table", Seat::Player) + side("Opponent's table", Seat::Opponent);
  told += std::to_string(left) + (left == 1 ? " card" : " cards") + " in the opponent's hand. Sets " +
          std::to_string(engine_.shown().SetWins(Seat::Player)) + " to " +
          std::to_string(engine_.shown().SetWins(Seat::Opponent)) + ".";
  if (engine_.shown().Light(Seat::Player)) told += " Your turn.";
  if (engine_.shown().Light(Seat::Opponent)) told += " The opponent's turn.";
  return told;
}

std::string frmGame::SpokenHand() const {
  std::string hand;
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const std::string card = SpokenCard(engine_.shown().HandCard(Seat::Player, slot));
    if (!card.empty()) Add(hand, "card " + std::to_string(slot) + ": " + card);
  }
  return hand.empty() ? "Your hand is empty." : "Your hand: " + hand + ".";
}

}  // namespace kv
