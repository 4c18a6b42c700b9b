#include "campaign/DeskTips.h"

#include <algorithm>

#include "cards/CardMeaning.h"

namespace kv {
namespace {

std::string CreditsOf(std::int32_t credits) {
  return std::to_string(credits) + (credits == 1 ? " credit" : " credits");
}

std::string BankUse(const CardDesk& desk, const CardPlace& place) {
  const bool enabled = desk.Bank(place).enabled;
  switch (desk.view()) {
    case CardView::Null:
      return "The stake comes first.";
    case CardView::Deck:
      if (!enabled) return "All of them are in the deck.";
      return desk.DeckCount() == kDeckSize ? "The deck is full: take a card out first."
                                           : "A click puts it into the deck.";
    case CardView::Buy:
      return "Costs " + CreditsOf(CardPrice(place.kind, place.value)) + ".";
    case CardView::Sell:
      return enabled ? "Brings " + CreditsOf(SellValue(place)) + "."
                     : "It is in the deck: take it out to sell it.";
  }
  return {};
}

std::string Limits(const CircuitOpponent& opponent) {
  if (opponent.maxWager == 0) return "Plays for nothing.";
  return "Plays for " + std::to_string(opponent.minWager) + " to " + CreditsOf(opponent.maxWager) + ".";
}

}  // namespace

std::string BankTip(const CardDesk& desk, const CardPlace& place) {
  const CardCode code = CollectionCode(place);
  return code.empty() ? std::string() : CardMeaning(code) + "\n" + BankUse(desk, place);
}

std::string DeckTip(const CardDesk& desk, int slot) {
  if (desk.Slot(slot).empty()) return {};
  return CardMeaning(desk.Slot(slot)) + "\n" +
         (desk.view() == CardView::Null ? "The stake comes first." : "A click takes it out of the deck.");
}

std::string ViewTip(const CardDesk& desk, CardView view) {
  const bool deck = view == CardView::Deck;
  if (desk.view() == view) return deck ? "You fill the deck now." : "You are in the shop for it now.";
  const DeskButtons buttons = desk.Buttons();
  if (!deck && !(view == CardView::Buy ? buttons.buy : buttons.sell)) return "Fill the deck first.";
  if (deck) return "Back to the deck. (1)";
  return view == CardView::Buy ? "The cards that your credits can pay for. (2)"
                               : "The cards that the shop takes, for less than they cost. (3)";
}

std::string TradeTip(const CardDesk& desk) {
  const TradeArea shop = desk.Shop();
  if (!shop.refusal.empty()) {
    return "Refused: " + std::string(shop.refusal) + ". Ten cards must be left, or the credits for them.";
  }
  const bool buys = desk.view() == CardView::Buy;
  if (shop.card.empty()) {
    return buys ? "Pick a card first. What costs more than your " + CreditsOf(desk.Credits()) +
                      " is not offered."
                : "Pick a card first.";
  }
  return (buys ? "Buys it for " : "Sells it for ") + shop.price + " credits. (Space)";
}

std::string PriceTip(const CardDesk& desk) {
  if (desk.view() == CardView::Buy) return "What the shop asks for the card, in credits.";
  return "What the shop pays for the card, in credits: 40 % of its price for plus cards, 50 % for minus,\n"
         "60 % for flip and 70 % for special cards.";
}

std::string ContinueTip(const CardDesk& desk) {
  if (desk.view() == CardView::Null) return "The stake comes first.";
  if (desk.view() != CardView::Deck) return "Go back to the deck first.";
  const int missing = kDeckSize - desk.DeckCount();
  if (missing > 0) {
    return "Ten cards make a deck: " + std::to_string(missing) + (missing == 1 ? " is" : " are") +
           " missing.";
  }
  return desk.ContinueCaption().empty() ? "Begins the match with this deck. (Enter)"
                                        : "Keeps deck and deals. (Enter)";
}

std::string OpponentTip(const CircuitTile& tile, std::int32_t credits) {
  if (!tile.enabled) {
    return "Plays for at least " + CreditsOf(tile.opponent.minWager) + "; you have " +
           std::to_string(credits) + ".";
  }
  const bool special = tile.opponent.name == kSpecialOpponent;
  const int more = (special ? kWinsToArcadeOpp : kWinsToUnlock) - tile.wins;
  if (tile.opponent.wins == nullptr || more <= 0) return Limits(tile.opponent);
  const char* brings = tile.opponent.name == kFinalOpponent ? " to finish the circuit."
                       : special                            ? " to unlock this opponent for arcade runs."
                                                            : " to open the next opponent.";
  return Limits(tile.opponent) + "\n" + std::to_string(more) + (more == 1 ? " more win" : " more wins") +
         brings;
}

std::string ClosedTileTip(const CircuitTile& before) {
  if (!before.visible) return "Someone who is still to come.";
  const int more = std::max(1, kWinsToUnlock - before.wins);
  return std::to_string(more) + (more == 1 ? " more win" : " more wins") + " against " +
         std::string(before.opponent.name) + " to open this place.";
}

}  // namespace kv
