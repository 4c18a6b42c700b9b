#include "campaign/Shop.h"

#include <algorithm>
#include <array>
#include <limits>

#include "match/clsGame.h"

namespace kv {
namespace {

constexpr int kSpecials = 5;  // the sixth special place holds no card
constexpr std::array<CardType, 3> kCollectionTypes = {CardType::Plus, CardType::Minus, CardType::Flip};

std::int32_t CheapestPrice() {
  std::int32_t cheapest = CardPrice(1, 1);
  for (int kind = 1; kind <= kCardKinds; ++kind) {
    for (int value = 1; value <= kCardNumbers; ++value) {
      if (HoldsCard({kind, value})) cheapest = std::min<std::int32_t>(cheapest, CardPrice(kind, value));
    }
  }
  return cheapest;
}

}  // namespace

CardPlace CardKindValue(const CardCode& code) {
  switch (code.type()) {
    case CardType::Plus:
      return {1, code.number()};
    case CardType::Minus:
      return {2, code.number()};
    case CardType::Flip:
    case CardType::FlipPlus:
    case CardType::FlipMinus:
      return {3, code.number()};
    case CardType::Tiebreaker:
    case CardType::Double:
    case CardType::Flip24:
    case CardType::Flip36:
    case CardType::OneOrTwo:
      return {4, code.text()[1] - '0'};
    default:
      break;
  }
  // "fn" is no type of a match, but an old name of the minus side of a flip card.
  return code.prefix() == "fn" ? CardPlace{3, NumberOf(code.numericPart())} : CardPlace{};
}

bool HoldsCard(const CardPlace& place) {
  return place.inTable() && (place.kind != kCardKinds || place.value <= kSpecials);
}

CardCode CollectionCode(const CardPlace& place) {
  if (!HoldsCard(place)) return {};
  if (place.kind == kCardKinds) {
    return CardCode("s" + std::to_string(place.value) + std::to_string(kNotChosen));
  }
  return {kCollectionTypes.at(static_cast<std::size_t>(place.kind) - 1), place.value};
}

std::int32_t SellValue(const CardPlace& place) {
  return place.inTable() ? CardPrice(place.kind, place.value) * SellFactor(place.kind) / 100 : 0;
}

bool Affordable(const CardPlace& place, std::int32_t credits) {
  const std::int32_t price = place.inTable() ? CardPrice(place.kind, place.value) : 0;
  return price > 0 && price <= credits;
}

bool FillsDeck(int cards, std::int32_t credits) {
  return cards + std::max(credits, 0) / CheapestPrice() >= kDeckSize;
}

bool BuyCard(const CardPlace& place, std::int32_t& credits, clsCardArray& cards) {
  if (!Affordable(place, credits)) return false;
  const std::int16_t count = cards.Value(place.kind, place.value);
  if (count == std::numeric_limits<std::int16_t>::max()) return false;
  credits -= CardPrice(place.kind, place.value);
  cards.setValue(place.kind, place.value, static_cast<std::int16_t>(count + 1));
  return true;
}

bool SellCard(const CardPlace& place, std::int32_t& credits, clsCardArray& cards) {
  if (!HoldsCard(place)) return false;
  const std::int16_t count = cards.Value(place.kind, place.value);
  if (count <= 0) return false;
  const std::int64_t sum = std::int64_t{credits} + SellValue(place);
  credits = static_cast<std::int32_t>(std::min<std::int64_t>(kMostCredits, sum));
  cards.setValue(place.kind, place.value, static_cast<std::int16_t>(count - 1));
  return true;
}

}  // namespace kv
