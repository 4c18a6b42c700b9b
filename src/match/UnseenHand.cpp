#include "match/UnseenHand.h"

#include <algorithm>
#include <cstdlib>

#include "ai/HandSearch.h"
#include "match/Dealing.h"

namespace kv {
namespace {

/// Flip cards are one kind, whatever their sign; a special card is known by its type.
bool FromTheSameCard(const CardCode& a, const CardCode& b) {
  const auto kind = [](const CardCode& card) {
    const bool flips = card.type() == CardType::FlipPlus || card.type() == CardType::FlipMinus;
    return flips ? CardType::Flip : card.type();
  };
  if (kind(a) != kind(b)) return false;
  const bool numbered =
      kind(a) == CardType::Flip || a.type() == CardType::Plus || a.type() == CardType::Minus;
  return !numbered || std::abs(a.number()) == std::abs(b.number());
}

clsDeckArray DeckOf(const PositionSide& side) {
  if (side.deck) return *side.deck;
  clsDeckArray deck;
  deck.DefaultDeckMP();
  return deck;
}

}  // namespace

CardCode Signed(const CardCode& card) {
  return card.type() == CardType::Minus ? CardCode(card.type(), card.cardValue()) : card;
}

UnseenHand::UnseenHand(const MatchPosition& position) {
  const PositionSide& side = position.other();
  const clsDeckArray deck = DeckOf(side);
  for (int i = 1; i <= kDeckSize; ++i) rest_.push_back(Signed(deck.Value(i).InHand()));
  for (const CardCode& played : side.played) {
    const auto found = std::find_if(rest_.begin(), rest_.end(),
                                    [&](const CardCode& each) { return FromTheSameCard(each, played); });
    if (found != rest_.end()) rest_.erase(found);
  }
  const auto held = std::count_if(side.hand.begin(), side.hand.end(),
                                  [](const CardCode& card) { return !IsEmptySlot(card); });
  held_ = static_cast<int>(std::min(held, std::ssize(rest_)));
}

void UnseenHand::Deal(MatchPosition& position, Random& random) {
  clsDeckArray hand;
  for (int slot = 1; slot <= kHandSize; ++slot) hand.setValue(slot, CardCode());
  for (int slot = 1; slot <= held_; ++slot) {
    const auto from = static_cast<std::size_t>(slot) - 1;
    const auto left = static_cast<double>(rest_.size() - from);
    std::swap(rest_[from], rest_[from + static_cast<std::size_t>(random.Rnd() * left)]);
    hand.setValue(slot, rest_[from]);
  }
  const Seat seat = OtherSeat(position.turn);
  if (seat == Seat::Opponent) AI_SortDeck(hand);
  auto& dealt = position.side(seat).hand;
  for (int slot = 1; slot <= kHandSize; ++slot)
    dealt.at(static_cast<std::size_t>(slot) - 1) = hand.Value(slot);
}

}  // namespace kv
