#include "vantri-campaign/CampaignPlay.h"

#include <algorithm>
#include <stdexcept>

#include "ai/clsAI_Normal.h"
#include "campaign/CardDesk.h"
#include "campaign/Settlement.h"
#include "campaign/WagerEntry.h"
#include "campaign/modSaveWin.h"
#include "match/HeadlessMatch.h"
#include "match/clsGame.h"
#include "profile/PlayerFields.h"

namespace kv {
namespace {

/// The cards that the buyer wants, in this order: flip cards of the middle first, then the cleverer specials.
/// The n-th takes the place of the n-th card of the first deck, weakest first.
constexpr std::array<CardPlace, kDeckSize> kWishes = {
    {{3, 4}, {3, 3}, {3, 4}, {3, 3}, {3, 2}, {4, 5}, {3, 2}, {4, 1}, {3, 1}, {4, 5}}};
constexpr int kReserve = 2;  // stakes that stay in the purse when buying

class NoBoxes final : public Dialogs {
 public:
  void Message(const std::string&, const std::string&, DialogIcon) override {}
  bool AskYesNo(const std::string&, const std::string&, DialogIcon) override { return true; }
  std::optional<std::string> AskText(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
};

/// The real bookings, without a file.
class BookInMemory final : public MatchBooking {
 public:
  BookInMemory(clsGame& game, PlayerFields& player, Dialogs& dialogs)
      : game_(game), player_(player), dialogs_(dialogs) {}
  void SaveWin() override { Require(BookWin(game_, player_, dialogs_)); }
  void SaveLoss() override { Require(BookLoss(game_, player_)); }

 private:
  static void Require(bool booked) {
    if (!booked) throw std::logic_error("a match was booked twice");
  }

  clsGame& game_;
  PlayerFields& player_;
  Dialogs& dialogs_;
};

class Campaign {
 public:
  Campaign(const CampaignHabits& habits, Strategy& strategy, Random& random)
      : habits_(habits), strategy_(strategy), random_(random) {
    game_.AI = std::make_shared<clsAI_Normal>();
  }

  CampaignResult Play() {
    while (result_.matches < habits_.mostMatches && !Over()) PlayMatch();
    result_.credits = player_.Credits->Value;
    result_.wins = player_.Wins->Value;
    return result_;
  }

 private:
  bool Over() {
    const Circuit circuit(game_, player_);
    if (circuit.Finished()) {
      result_.end = CampaignEnd::Finished;
      return true;
    }
    if (!circuit.Bankrupt()) return false;
    result_.end = CampaignEnd::Bankrupt;
    return true;
  }

  void PlayMatch() {
    if (player_.Credits->Value == 0) SellEverything();
    const int tile = ChooseOpponent();
    CardDesk desk(game_, player_, networkStake_);
    if (!TakeStake(game_, player_, Stake())) throw std::logic_error("a stake was refused");
    desk.StakeSettled();
    if (habits_.buys) Buy(desk);
    desk.Store();
    DealMatch(game_, player_, random_);
    static_cast<void>(PlayPrepared(game_, strategy_, booking_, {}, random_));
    ++result_.matches;
    ++result_.against.at(static_cast<std::size_t>(tile));
  }

  /// The newest opponent; when it asks for more than there is, the richest of those that can be met.
  int ChooseOpponent() {
    Circuit circuit(game_, player_);
    frontier_ = 0;
    int chosen = 0;
    for (int tile = 0; tile < kCircuitTiles; ++tile) {
      const CircuitTile each = circuit.Tile(tile);
      if (!each.visible) continue;
      frontier_ = tile;
      if (each.enabled) chosen = tile;
    }
    earning_ = chosen != frontier_;
    if (!circuit.Choose(chosen)) throw std::logic_error("an open tile was refused");
    return chosen;
  }

  std::int32_t Stake() const {
    const std::int32_t most = std::min(game_.CreditsRef->Value, game_.MaxWager);
    const std::int32_t least = game_.MinWager;
    // Who has to earn the next opponent's stake first plays for as much as there is to win.
    if (earning_ || habits_.stakes == StakePolicy::Most) return most;
    if (habits_.stakes == StakePolicy::Least) return least;
    return std::clamp(game_.CreditsRef->Value / 4, least, most);
  }

  /// Buys the next wished card while that leaves stakes for the newest opponent, and sells the card it
  /// replaces.
  void Buy(CardDesk& desk) {
    const std::int32_t stake =
        std::max<std::int32_t>(50, CircuitOpponents().at(static_cast<std::size_t>(frontier_)).minWager);
    while (result_.bought < kDeckSize) {
      const CardPlace wish = kWishes.at(static_cast<std::size_t>(result_.bought));
      if (!Affordable(wish, desk.Credits() - kReserve * stake)) return;
      const int slot = SlotOfWeakest(desk);
      const CardPlace old = CardKindValue(desk.Slot(slot));
      TradeOne(desk, CardView::Buy, wish);
      desk.YourDeck(CardView::Deck);
      if (!desk.RemoveCard(slot) || desk.ClickBank(wish) != BankClick::Added) {
        throw std::logic_error("a card could not be changed");
      }
      TradeOne(desk, CardView::Sell, old);
      desk.YourDeck(CardView::Deck);
      ++result_.bought;
    }
  }

  /// The first plus card of the first deck that is still there.
  static int SlotOfWeakest(const CardDesk& desk) {
    int slot = 1;
    while (CardKindValue(desk.Slot(slot)).kind != 1) ++slot;
    return slot;
  }

  static void TradeOne(CardDesk& desk, CardView view, const CardPlace& place) {
    desk.YourDeck(view);
    if (desk.ClickBank(place) != BankClick::Picked || !desk.Trade()) {
      throw std::logic_error("the shop refused a deal");
    }
  }

  /// Without credits the cards that are not in the deck have to go.
  void SellEverything() {
    Circuit(game_, player_).ChooseDeckView();
    CardDesk desk(game_, player_, networkStake_);
    for (int kind = 1; kind <= kCardKinds; ++kind) {
      for (int value = 1; value <= kCardNumbers; ++value) {
        while (desk.Bank({kind, value}).count > 0) TradeOne(desk, CardView::Sell, {kind, value});
      }
    }
    desk.YourDeck(CardView::Deck);
    desk.Store();
  }

  const CampaignHabits& habits_;
  Strategy& strategy_;
  Random& random_;
  PlayerFields player_;
  clsGame game_;
  NoBoxes dialogs_;
  BookInMemory booking_{game_, player_, dialogs_};
  NetworkStake networkStake_;
  CampaignResult result_;
  int frontier_ = 0;
  bool earning_ = false;
};

}  // namespace

CampaignResult PlayCampaign(const CampaignHabits& habits, Strategy& strategy, Random& random) {
  return Campaign(habits, strategy, random).Play();
}

}  // namespace kv
