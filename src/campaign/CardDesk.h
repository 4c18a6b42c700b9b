// The card screen without its window: working copies of credits, side deck and collection, on which the deck
// is edited and the shop trades until Continue stores them. Whatever is not stored is as if it had not been.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "campaign/DeskView.h"
#include "campaign/Shop.h"
#include "cards/clsNumbers.h"

namespace kv {

class Random;
class clsGame;
struct PlayerFields;
struct NetworkStake;

class CardDesk {
 public:
  /// Opens the desk: no stake is open any more (in "Network_Arcade" one of 0 is), and the record's references
  /// become working copies. All three must outlive it.
  CardDesk(clsGame& game, PlayerFields& player, NetworkStake& networkStake);

  /// The stake was settled: the deck view opens.
  void StakeSettled();
  /// Switches the lower panel; nothing is picked afterwards.
  void YourDeck(CardView view);
  /// A click on a collection card: adds it to the deck, or picks it for the shop.
  BankClick ClickBank(const CardPlace& place);
  /// A click on a deck slot, 1 to 10: its card goes back to the collection. False when nothing happened.
  bool RemoveCard(int slot);
  /// Carries out the deal with the picked card. False when nothing was traded, as by a deal after which the
  /// deck could not be filled any more.
  bool Trade();
  /// Continue: the working copies go back to where the mode keeps them. Does not save the file. Nothing can
  /// be changed on the desk afterwards.
  void Store();
  /// Whether credits, deck or collection differ from what Continue would replace.
  [[nodiscard]] bool Changed() const;
  /// Whether the title bar leaves without asking: no match is at stake.
  [[nodiscard]] bool LeavesFreely() const;

  [[nodiscard]] std::string_view Title() const;
  /// "ok" when only the deck is looked at; otherwise empty: the button keeps its caption.
  [[nodiscard]] std::string_view ContinueCaption() const;
  [[nodiscard]] CardView view() const { return view_; }
  [[nodiscard]] std::int32_t Credits() const { return credits_->Value; }
  [[nodiscard]] BankCard Bank(const CardPlace& place) const;
  /// The card in a slot, 1 to 10; empty for none.
  [[nodiscard]] const CardCode& Slot(int slot) const { return deck_->Value(slot); }
  [[nodiscard]] int DeckCount() const;  // 0 to 10
  [[nodiscard]] DeskButtons Buttons() const;
  [[nodiscard]] TradeArea Shop() const;

 private:
  enum class BankState : std::uint8_t { Hidden, Disabled, Enabled };
  /// Where the mode keeps what Continue stores; null where it does not.
  struct Account {
    std::shared_ptr<clsLong> credits;
    std::shared_ptr<clsDeckArray> deck;
    std::shared_ptr<clsCardArray> cards;
  };

  [[nodiscard]] Account Kept() const;
  void TakeOutDeck();
  void RefreshBanks();
  void RefreshBank(const CardPlace& place);
  [[nodiscard]] BankState StateInView(const CardPlace& place) const;
  [[nodiscard]] BankState& State(const CardPlace& place);
  [[nodiscard]] bool InDeck(const CardPlace& place) const;
  /// Cards in the deck and in the collection.
  [[nodiscard]] int Owned() const;
  /// Whether the person is worse off for it than before: able to fill the deck now, but not with these.
  [[nodiscard]] bool StrandsDeck(int owned, std::int32_t credits) const;
  [[nodiscard]] std::string_view Refusal() const;
  BankClick AddCard(const CardPlace& place);
  void ChangeCount(const CardPlace& place, int change);

  clsGame& game_;
  PlayerFields& player_;
  NetworkStake& networkStake_;
  std::shared_ptr<clsLong> credits_;
  std::shared_ptr<clsDeckArray> deck_;
  std::shared_ptr<clsCardArray> cards_;
  std::array<std::array<BankState, kCardNumbers>, kCardKinds> banks_{};
  CardPlace picked_;
  CardView view_ = CardView::Null;
  bool stored_ = false;
};

/// Deals both hands of the match that Continue begins. In "Campaign", CampaignWinRef becomes the player's
/// counter against the opponent.
void DealMatch(clsGame& game, PlayerFields& player, Random& random);

}  // namespace kv
