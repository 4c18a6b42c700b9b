#include "campaign/DeskView.h"

#include <array>

#include "campaign/CardDesk.h"
#include "match/clsGame.h"

namespace kv {
namespace {

struct TitleRow {
  std::string_view mode;
  std::string_view title;
};
constexpr std::array<TitleRow, 5> kTitles = {{
    {kModeArcade, "Arcade Match: Select Cards"},
    {kModeCampaign, "Campaign Match: Select Cards"},
    {kModeDeckConfig, "Deck View (No Match)"},
    {kModeNetwork, "Network Match: Select Cards"},
    {kModeNetworkArcade, "Network Arcade Match: Select Cards"},
}};

}  // namespace

std::string_view CardDesk::Title() const {
  for (const TitleRow& row : kTitles) {
    if (row.mode == game_.Mode) return row.title;
  }
  return "Kelm Vantri: Select Cards";
}

std::string_view CardDesk::ContinueCaption() const {
  return game_.Mode == kModeDeckConfig ? "ok" : "";
}

BankCard CardDesk::Bank(const CardPlace& place) const {
  const BankState state =
      banks_.at(static_cast<std::size_t>(place.kind) - 1).at(static_cast<std::size_t>(place.value) - 1);
  return {.code = CollectionCode(place),
          .count = cards_->Value(place.kind, place.value),
          .visible = state != BankState::Hidden,
          .enabled = state == BankState::Enabled};
}

DeskButtons CardDesk::Buttons() const {
  const bool shop = game_.Mode != kModeArcade && game_.Mode != kModeNetworkArcade;
  if (view_ == CardView::Null) return {};
  const bool full = DeckCount() == kDeckSize;
  // Whoever owns too few cards for a deck gets them in the shop and nowhere else.
  const bool trades = shop && (full || Owned() < kDeckSize);
  return {.shown = shop,
          .deck = shop && view_ != CardView::Deck,
          .buy = trades && view_ != CardView::Buy,
          .sell = trades && view_ != CardView::Sell,
          .next = full && view_ == CardView::Deck && !stored_};
}

TradeArea CardDesk::Shop() const {
  if (view_ != CardView::Buy && view_ != CardView::Sell) return {};
  const bool buys = view_ == CardView::Buy;
  TradeArea area{.shown = true,
                 .amountHeader = buys ? "# Owned:" : "# Left:",
                 .priceHeader = buys ? "Cost:" : "Value:",
                 .caption = buys ? "buy" : "sell",
                 .card = CollectionCode(picked_)};
  if (area.card.empty()) return area;
  int owned = cards_->Value(picked_.kind, picked_.value);
  for (int slot = 1; slot <= kDeckSize; ++slot) owned += deck_->Value(slot) == area.card ? 1 : 0;
  area.price = std::to_string(buys ? CardPrice(picked_.kind, picked_.value) : SellValue(picked_));
  area.amount = std::to_string(owned);
  area.refusal = Refusal();
  return area;
}

std::string_view CardDesk::Refusal() const {
  if (view_ == CardView::Sell && StrandsDeck(Owned() - 1, credits_->Value + SellValue(picked_))) {
    return "the deck needs this card";
  }
  const std::int32_t price = CardPrice(picked_.kind, picked_.value);
  if (view_ == CardView::Buy && StrandsDeck(Owned() + 1, credits_->Value - price)) {
    return "the deck comes first";
  }
  return {};
}

}  // namespace kv
