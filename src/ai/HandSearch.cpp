#include "ai/HandSearch.h"

#include <algorithm>
#include <cstdlib>

namespace kv {
namespace {

/// Whether the card makes the change; `chosen` is the type it then takes, Other when its code stays.
struct Match {
  bool found = false;
  CardType chosen = CardType::Other;
};

Match MatchCard(const CardCode& card, std::span<const CardCode> table, int total, int change) {
  const int size = std::abs(change);
  switch (card.type()) {
    case CardType::FlipPlus:
    case CardType::FlipMinus:
    case CardType::Flip:
      return {std::abs(card.number()) == size, change >= 0 ? CardType::FlipPlus : CardType::FlipMinus};
    case CardType::Tiebreaker:
      return {size == 1, CardType::Tiebreaker};
    case CardType::Double:
      return {!table.empty() && table.back().cardValue() == change, CardType::Double};
    case CardType::Flip24:
      return {TestInvert(table, total, 2, 4) - total == change, CardType::Other};
    case CardType::Flip36:
      return {TestInvert(table, total, 3, 6) - total == change, CardType::Other};
    case CardType::OneOrTwo:
      return {size == 1 || size == 2, CardType::OneOrTwo};
    default:
      return {card.number() == change, CardType::Other};
  }
}

}  // namespace

int CountHand(const clsDeckArray& hand) {
  int count = 0;
  for (int slot = 1; slot <= kHandSize; ++slot) count += IsEmptySlot(hand.Value(slot)) ? 0 : 1;
  return count;
}

int FindHandType(const clsDeckArray& hand, std::string_view type) {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const std::string_view prefix = hand.Value(slot).prefix();
    if (std::equal(prefix.begin(), prefix.end(), type.begin(), type.end())) return slot;
  }
  return 0;
}

int TestInvert(std::span<const CardCode> table, int total, int a, int b) {
  for (const CardCode& card : table) {
    const int size = std::abs(card.cardValue());
    if (size == a || size == b) total -= 2 * card.cardValue();
  }
  return total;
}

int FindHandCard(clsDeckArray& hand, std::span<const CardCode> table, int total, int change) {
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const CardCode& card = hand.Value(slot);
    const Match match = MatchCard(card, table, total, change);
    if (!match.found || IsEmptySlot(card)) continue;
    if (match.chosen != CardType::Other) hand.setValue(slot, CardCode(match.chosen, change));
    return slot;
  }
  return 0;
}

}  // namespace kv
