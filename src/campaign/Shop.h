// Which place of the collection a card has, and what the shop asks and pays for it. Pure tables and integers:
// a price is never computed with fractions.
#pragma once

#include <cstdint>

#include "cards/CardCode.h"
#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"

namespace kv {

/// Indexes a clsCardArray. (0, 0) for a code that no collection holds.
struct CardPlace {
  int kind = 0;
  int value = 0;

  friend bool operator==(const CardPlace&, const CardPlace&) = default;
  /// Whether the collection has such a place.
  [[nodiscard]] bool inTable() const {
    return kind >= 1 && kind <= kCardKinds && value >= 1 && value <= kCardNumbers;
  }
};

[[nodiscard]] CardPlace CardKindValue(const CardCode& code);
/// Whether there is a card of this kind and number.
[[nodiscard]] bool HoldsCard(const CardPlace& place);
/// The card on a place of the collection; the empty code for a place that holds none.
[[nodiscard]] CardCode CollectionCode(const CardPlace& place);

/// What the shop pays for cards of a kind, in hundredths of their price: 40 for plus cards, ten more for each
/// kind after them.
[[nodiscard]] constexpr std::int32_t SellFactor(int kind) {
  return (kind - 1) * 10 + 40;
}
/// What the shop pays for a card, in credits; 0 where there is none.
[[nodiscard]] std::int32_t SellValue(const CardPlace& place);
/// Whether these credits can pay for the card.
[[nodiscard]] bool Affordable(const CardPlace& place, std::int32_t credits);

/// Whether this many cards, with what the shop sells for these credits, make a full deck.
[[nodiscard]] bool FillsDeck(int cards, std::int32_t credits);

/// One card changes hands. False, and nothing changed, when it cannot be paid for or there is none to sell,
/// and when the collection can count no further. Credits stop at kMostCredits.
[[nodiscard]] bool BuyCard(const CardPlace& place, std::int32_t& credits, clsCardArray& cards);
[[nodiscard]] bool SellCard(const CardPlace& place, std::int32_t& credits, clsCardArray& cards);

}  // namespace kv
