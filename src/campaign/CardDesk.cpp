#include "campaign/CardDesk.h"

#include <algorithm>
#include <limits>

#include "campaign/Circuit.h"
#include "campaign/WagerEntry.h"
#include "match/Dealing.h"
#include "match/clsGame.h"
#include "profile/PlayerFields.h"

namespace kv {
namespace {

constexpr std::int16_t kArcadeCopies = 10;  // of every card, those in the deck included

template <typename T>
std::shared_ptr<T> CopyOf(const T& source) {
  auto copy = std::make_shared<T>();
  copy->CopyArray(source);
  return copy;
}

bool IsCard(const CardCode& code) {
  return code.type() != CardType::Other;
}

template <typename Action>
void ForEachPlace(const Action& action) {
  for (int kind = 1; kind <= kCardKinds; ++kind) {
    for (int value = 1; value <= kCardNumbers; ++value) action(CardPlace{kind, value});
  }
}

}  // namespace

CardDesk::CardDesk(clsGame& game, PlayerFields& player, NetworkStake& networkStake)
    : game_(game),
      player_(player),
      networkStake_(networkStake),
      credits_(std::make_shared<clsLong>(clsLong{game.CreditsRef ? game.CreditsRef->Value : 0})) {
  game_.Wager = game_.Mode == kModeNetworkArcade ? 0 : -1;
  // A run starts each match from the stored deck: the copy of a match before may have been left half edited.
  deck_ = CopyOf(game_.Mode == kModeArcade ? *player_.ArcadeDeck : *game_.DeckRef);
  cards_ = CopyOf(*game_.CardsRef);
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    if (!IsCard(deck_->Value(slot))) deck_->setValue(slot, CardCode());
  }
  if (game_.Mode == kModeArcade || game_.Mode == kModeNetworkArcade) TakeOutDeck();
  game_.CreditsRef = credits_;
  game_.DeckRef = deck_;
  game_.CardsRef = cards_;
  const bool atOnce = game_.Mode == kModeDeckConfig || game_.Mode == kModeNetworkArcade;
  YourDeck(atOnce ? CardView::Deck : CardView::Null);
}

void CardDesk::TakeOutDeck() {
  cards_->Fill(kArcadeCopies);
  for (int slot = 1; slot <= kDeckSize; ++slot) ChangeCount(CardKindValue(deck_->Value(slot)), -1);
}

void CardDesk::StakeSettled() {
  YourDeck(CardView::Deck);
}

void CardDesk::YourDeck(CardView view) {
  view_ = view;
  picked_ = {};
  RefreshBanks();
}

void CardDesk::RefreshBanks() {
  ForEachPlace([this](const CardPlace& place) { State(place) = StateInView(place); });
}

CardDesk::BankState CardDesk::StateInView(const CardPlace& place) const {
  if (!HoldsCard(place)) return BankState::Hidden;
  const bool any = cards_->Value(place.kind, place.value) > 0;
  switch (view_) {
    case CardView::Buy:
      return Affordable(place, credits_->Value) ? BankState::Enabled : BankState::Hidden;
    case CardView::Sell:
      if (!any && InDeck(place)) return BankState::Disabled;
      break;
    case CardView::Null:
    case CardView::Deck:
      break;
  }
  return any ? BankState::Enabled : BankState::Hidden;
}

CardDesk::BankState& CardDesk::State(const CardPlace& place) {
  return banks_.at(static_cast<std::size_t>(place.kind) - 1).at(static_cast<std::size_t>(place.value) - 1);
}

bool CardDesk::InDeck(const CardPlace& place) const {
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    if (CardKindValue(deck_->Value(slot)) == place) return true;
  }
  return false;
}

BankClick CardDesk::ClickBank(const CardPlace& place) {
  if (stored_ || view_ == CardView::Null || !place.inTable()) return BankClick::Ignored;
  if (State(place) != BankState::Enabled) return BankClick::Ignored;
  if (view_ == CardView::Deck) return AddCard(place);
  picked_ = place;
  return BankClick::Picked;
}

BankClick CardDesk::AddCard(const CardPlace& place) {
  int slot = 1;
  while (slot <= kDeckSize && !deck_->Value(slot).empty()) ++slot;
  if (slot > kDeckSize) return BankClick::Ignored;
  deck_->setValue(slot, CollectionCode(place));
  // With the count of before: what this click spends stays in sight.
  if (DeckCount() == kDeckSize) YourDeck(CardView::Deck);
  ChangeCount(place, -1);
  // A spent card stays in sight, dimmed, until the deck is full: its neighbours keep their places meanwhile.
  if (cards_->Value(place.kind, place.value) == 0) State(place) = BankState::Disabled;
  return BankClick::Added;
}

bool CardDesk::RemoveCard(int slot) {
  if (stored_ || view_ == CardView::Null || slot < 1 || slot > kDeckSize) return false;
  if (deck_->Value(slot).empty()) return false;
  const CardPlace place = CardKindValue(deck_->Value(slot));
  // A collection that can count no further cannot take the card back.
  if (place.inTable() && cards_->Value(place.kind, place.value) == std::numeric_limits<std::int16_t>::max()) {
    return false;
  }
  // A code that the collection cannot hold would be gone for good.
  if (!place.inTable() && StrandsDeck(Owned() - 1, credits_->Value)) return false;
  deck_->setValue(slot, CardCode());
  ChangeCount(place, 1);
  if (place.inTable()) State(place) = StateInView(place);
  return true;
}

void CardDesk::ChangeCount(const CardPlace& place, int change) {
  // A code that no collection holds (a damaged deck may have one) goes without a trace.
  if (!place.inTable()) return;
  const int count = cards_->Value(place.kind, place.value) + change;
  cards_->setValue(place.kind, place.value, static_cast<std::int16_t>(count));
}

int CardDesk::DeckCount() const {
  int count = 0;
  for (int slot = 1; slot <= kDeckSize; ++slot) count += deck_->Value(slot).empty() ? 0 : 1;
  return count;
}

int CardDesk::Owned() const {
  int owned = DeckCount();
  ForEachPlace([this, &owned](const CardPlace& place) {
    if (HoldsCard(place)) owned += std::max<int>(cards_->Value(place.kind, place.value), 0);
  });
  return owned;
}

bool CardDesk::StrandsDeck(int owned, std::int32_t credits) const {
  return FillsDeck(Owned(), credits_->Value) && !FillsDeck(owned, credits);
}

bool CardDesk::Trade() {
  if (stored_ || !picked_.inTable() || !Refusal().empty()) return false;
  const CardPlace place = picked_;
  const bool traded = view_ == CardView::Buy ? BuyCard(place, credits_->Value, *cards_)
                                             : SellCard(place, credits_->Value, *cards_);
  YourDeck(view_);
  return traded;
}

CardDesk::Account CardDesk::Kept() const {
  if (game_.Mode == kModeArcade) return {.credits = {}, .deck = player_.ArcadeDeck, .cards = {}};
  if (game_.Mode == kModeCampaign || game_.Mode == kModeDeckConfig) {
    return {player_.Credits, player_.Deck, player_.Cards};
  }
  if (game_.Mode == kModeNetwork) return {player_.Credits_MP, player_.Deck_MP, player_.Cards_MP};
  return {};
}

bool CardDesk::Changed() const {
  const Account kept = Kept();
  if (stored_ || kept.deck == nullptr) return false;
  for (int slot = 1; slot <= kDeckSize; ++slot) {
    // What is no card was left out when the desk was opened: that is nobody's change.
    const CardCode& code = kept.deck->Value(slot);
    if (IsCard(code) ? code != deck_->Value(slot) : IsCard(deck_->Value(slot))) return true;
  }
  const bool shop = kept.cards != nullptr;
  return shop && (kept.credits->Value != credits_->Value || *kept.cards != *cards_);
}

void CardDesk::Store() {
  if (stored_) return;
  stored_ = true;
  const Account kept = Kept();
  if (kept.deck != nullptr) {
    kept.deck->CopyArray(*deck_);
    game_.DeckRef = kept.deck;
  }
  if (kept.cards != nullptr) {
    kept.credits->Value = credits_->Value;
    kept.cards->CopyArray(*cards_);
    game_.CreditsRef = kept.credits;
    game_.CardsRef = kept.cards;
  }
  if (game_.Mode == kModeNetwork) networkStake_.last = game_.Wager;
}

bool CardDesk::LeavesFreely() const {
  return game_.Wager == -1 || (game_.Mode == kModeNetworkArcade && game_.Wager == 0);
}

void DealMatch(clsGame& game, PlayerFields& player, Random& random) {
  DealYourHand(game, random);
  if (game.Mode == kModeCampaign) game.CampaignWinRef = WinCounter(player, game.OppName);
  SetupCompHand(game, random);
}

}  // namespace kv
