#include "match/PossibleMoves.h"

#include <algorithm>
#include <cstdlib>

#include "ai/HandSearch.h"

namespace kv {
namespace {

constexpr int kSafeTotal = 10;  // no card of the main deck takes it over 20

/// The card as it can be played: with every sign, or as it is.
std::vector<CardCode> WaysToPlay(const CardCode& card) {
  const int size = std::abs(card.number());
  switch (card.type()) {
    case CardType::Flip:
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      return {CardCode(CardType::FlipPlus, size), CardCode(CardType::FlipMinus, -size)};
    case CardType::Tiebreaker:
      return {CardCode(card.type(), 1), CardCode(card.type(), -1)};
    case CardType::OneOrTwo:
      return {CardCode(card.type(), 1), CardCode(card.type(), -1), CardCode(card.type(), 2),
              CardCode(card.type(), -2)};
    default:
      return {card};
  }
}

int TotalTurned(const std::vector<CardCode>& table, int a, int b) {
  int total = 0;
  for (const CardCode& card : table) {
    const int size = std::abs(card.cardValue());
    total += size == a || size == b ? card.Inverted().cardValue() : card.cardValue();
  }
  return total;
}

void AddWithCard(const MatchPosition& position, TurnMove move, std::vector<TurnMove>& moves) {
  const int total = TotalAfter(position, move);
  if (total > kTargetTotal) return;
  const PositionSide& other = position.other();
  const bool full = position.own().table.size() == kTableSize - 1;
  const bool closes = full || total == kTargetTotal || (other.stood && total > other.Total());
  if (closes || other.stood || total > kSafeTotal) {
    move.stands = true;
    moves.push_back(move);
  }
  if (!closes) {
    move.stands = false;
    moves.push_back(move);
  }
}

bool SameCard(const CardCode& a, const CardCode& b) {
  return a.type() == b.type() && a.cardValue() == b.cardValue();
}

}  // namespace

int TotalAfter(const MatchPosition& position, const TurnMove& move) {
  const auto& table = position.own().table;
  const int total = position.own().Total();
  if (move.slot == 0 || table.size() == kTableSize) return total;
  if (move.card.number() != kNotChosen) return total + move.card.cardValue();
  switch (move.card.type()) {
    case CardType::Double:
      return total + (table.empty() ? 0 : table.back().cardValue());
    case CardType::Flip24:
      return TotalTurned(table, 2, 4);
    case CardType::Flip36:
      return TotalTurned(table, 3, 6);
    default:
      return total;
  }
}

std::vector<TurnMove> PossibleMoves(const MatchPosition& position) {
  const PositionSide& own = position.own();
  const bool standsByItself = position.turn == Seat::Player && own.Total() == kTargetTotal;
  std::vector<TurnMove> moves{TurnMove{0, CardCode(), true}};
  if (standsByItself || own.table.size() == kTableSize) return moves;
  if (own.Total() <= kTargetTotal) moves.push_back(TurnMove());
  if (position.cardPlayed) return moves;
  std::vector<CardCode> seen;
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const CardCode& card = own.hand.at(static_cast<std::size_t>(slot) - 1);
    if (IsEmptySlot(card) || card.type() == CardType::FaceDown) continue;
    for (const CardCode& way : WaysToPlay(card)) {
      const bool known =
          std::any_of(seen.begin(), seen.end(), [&](const CardCode& each) { return SameCard(each, way); });
      if (known) continue;
      seen.push_back(way);
      AddWithCard(position, {.slot = slot, .card = way}, moves);
    }
  }
  return moves;
}

}  // namespace kv
