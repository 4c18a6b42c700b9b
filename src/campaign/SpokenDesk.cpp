#include "campaign/SpokenDesk.h"

#include "campaign/WagerEntry.h"
#include "cards/CardFaces.h"
#include "cards/clsDeckArray.h"

namespace kv {

std::string SpokenDeal(CardView view, const CardCode& card, std::int32_t credits) {
  return (view == CardView::Buy ? "Bought " : "Sold ") + SpokenCard(card) + ". " + std::to_string(credits) +
         " credits.";
}

std::string SpokenPick(CardView view, const TradeArea& shop) {
  if (!shop.shown || shop.card.empty()) return {};
  const bool buy = view == CardView::Buy;
  std::string told = SpokenCard(shop.card) + (buy ? ". Price " : ". Value ") + shop.price + ". " +
                     shop.amount + (buy ? " owned." : " left.");
  if (!shop.refusal.empty()) told += " Refused: " + std::string(shop.refusal) + ".";
  return told;
}

std::string SpokenQuestion(const WagerEntry& entry) {
  std::string told = "How much do you wager? " + entry.CreditsText() + ".";
  if (const std::string info = entry.InfoText(); !info.empty()) told += " " + info + ".";
  if (!entry.boxEnabled()) return told + " " + entry.ButtonTip();
  return entry.text().empty() ? told : told + " " + entry.text() + " is proposed.";
}

std::string SpokenChange(const CardCode& card, bool added, int cards) {
  return SpokenCard(card) + (added ? " added. " : " removed. ") + std::to_string(cards) + " of " +
         std::to_string(kDeckSize) + " cards.";
}

}  // namespace kv
