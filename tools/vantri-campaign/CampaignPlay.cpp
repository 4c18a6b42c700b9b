#include "vantri-campaign/CampaignPlay.h"

#include <algorithm>
#include <stdexcept>

#include "ai/clsAI_Normal.h"
#include "campaign/CardDesk.h"
#include "campaign/Settlement.h"
#include "campaign/WagerEntry.h"
#include "campaign/modSaveWin.h"
#include "match/Dealing.h"
#include "match/HeadlessMatch.h"
#include "match/OracleSeat.h"
#include "match/clsGame.h"
#include "profile/PlayerFields.h"
#include "vantri-strength/Tournament.h"

namespace kv {
namespace {

/// One card of the deck for a better one.
struct Swap {
  CardPlace old;
  CardPlace better;
};
/// What the buyer does, in this order. The small plus cards of the first deck sell for more than a flip card
/// of a high number costs; flip cards of many different numbers serve a hand best; the one-or-two card is the
/// best of all.
constexpr std::array<Swap, 13> kSwaps = {{{{1, 1}, {1, 6}},
                                          {{1, 1}, {3, 6}},
                                          {{1, 6}, {3, 6}},
                                          {{1, 2}, {3, 5}},
                                          {{1, 2}, {3, 5}},
                                          {{1, 3}, {3, 4}},
                                          {{1, 3}, {3, 4}},
                                          {{1, 5}, {3, 3}},
                                          {{1, 5}, {3, 2}},
                                          {{1, 4}, {3, 3}},
                                          {{1, 4}, {3, 2}},
                                          {{3, 6}, {4, 5}},
                                          {{3, 6}, {4, 5}}}};
constexpr std::int32_t kSmallestPurse = 100;  // what the buyer keeps
constexpr int kPurseStakes = 2;               // or so many of the newest opponent's least stakes
constexpr int kPatientStakes = 5;             // what the patient player wants to have before meeting it

constexpr double kSeeds = 9007199254740992.0;  // 2^53, all that Rnd tells apart

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
    // What an oracle simulates is no part of the campaign's own chance.
    if (oracle_ != nullptr) oracleSeeds_ = SeededRandom(static_cast<std::uint64_t>(random_.Rnd() * kSeeds));
  }

  CampaignResult Play() {
    while (result_.matches < habits_.mostMatches && !Over()) PlayMatch();
    result_.credits = player_.Credits->Value;
    result_.wins = player_.Wins->Value;
    result_.losses = player_.Losses->Value;
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
    if (habits_.buys) Buy();
    if (!Circuit(game_, player_).Choose(tile)) throw std::logic_error("an open tile was refused");
    CardDesk desk(game_, player_, networkStake_);
    if (!TakeStake(game_, player_, Stake())) throw std::logic_error("a stake was refused");
    desk.StakeSettled();
    desk.Store();
    DealMatch(game_, player_, random_);
    SeatOracle();
    static_cast<void>(PlayPrepared(game_, strategy_, booking_, {}, random_, {}, oracle_));
    ++result_.matches;
    ++result_.against.at(static_cast<std::size_t>(tile));
  }

  void SeatOracle() {
    if (oracle_ == nullptr) return;
    const bool mirror = game_.OppName == "Yourself";
    oracle_->SitDown(Seat::Player, mirror ? *game_.DeckRef : OpponentDeck(game_.OppName),
                     MatchOptions().turnMode, static_cast<std::uint64_t>(oracleSeeds_.Rnd() * kSeeds));
  }

  /// The newest opponent; while the purse is too small for it, the one from whom most can be expected.
  int ChooseOpponent() {
    const Circuit circuit(game_, player_);
    newest_ = 0;
    int earner = 0;
    double best = -1e9;
    for (int index = 0; index < kCircuitTiles; ++index) {
      const CircuitTile tile = circuit.Tile(index);
      if (!tile.visible) continue;
      newest_ = index;
      if (!tile.enabled) continue;
      // Half a match each is what the player believes before the first one.
      const double share = (tile.wins + 1.0) / (result_.against.at(static_cast<std::size_t>(index)) + 2.0);
      const double gain = (share - 0.5) * std::min(tile.opponent.maxWager, player_.Credits->Value);
      if (gain > best) {
        best = gain;
        earner = index;
      }
    }
    const std::int32_t wanted = LeastStakeOfNewest() * (habits_.patient ? kPatientStakes : 1);
    earning_ = player_.Credits->Value < wanted;
    return earning_ ? earner : newest_;
  }

  std::int32_t LeastStakeOfNewest() const {
    return CircuitOpponents().at(static_cast<std::size_t>(newest_)).minWager;
  }

  std::int32_t Stake() const {
    const std::int32_t most = std::min(game_.CreditsRef->Value, game_.MaxWager);
    const std::int32_t least = game_.MinWager;
    if (habits_.stakes == StakePolicy::Most) return most;
    // Who has to earn something cannot play for nothing.
    if (habits_.stakes == StakePolicy::Least && !earning_) return least;
    return std::clamp(game_.CreditsRef->Value / 4, least, most);
  }

  /// In the deck view, before a match: every swap that leaves the purse full enough.
  void Buy() {
    if (bought_ == kSwaps.size() || !CanBuy(player_.Credits->Value)) return;
    Circuit(game_, player_).ChooseDeckView();
    CardDesk desk(game_, player_, networkStake_);
    while (bought_ < kSwaps.size() && CanBuy(desk.Credits())) {
      const Swap& swap = kSwaps.at(bought_);
      TradeOne(desk, CardView::Buy, swap.better);
      desk.YourDeck(CardView::Deck);
      int slot = 1;
      while (CardKindValue(desk.Slot(slot)) != swap.old) ++slot;
      if (!desk.RemoveCard(slot) || desk.ClickBank(swap.better) != BankClick::Added) {
        throw std::logic_error("a card could not be changed");
      }
      TradeOne(desk, CardView::Sell, swap.old);
      ++bought_;
    }
    desk.YourDeck(CardView::Deck);
    desk.Store();
    result_.bought = static_cast<int>(bought_);
  }

  [[nodiscard]] bool CanBuy(std::int32_t credits) const {
    const Swap& swap = kSwaps.at(bought_);
    const std::int32_t purse = std::max(kSmallestPurse, LeastStakeOfNewest() * kPurseStakes);
    const std::int32_t left = credits - CardPrice(swap.better.kind, swap.better.value) + SellValue(swap.old);
    return Affordable(swap.better, credits) && left >= purse;
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
  OracleSeat* const oracle_ = OracleIn(strategy_);
  SeededRandom oracleSeeds_{0};
  PlayerFields player_;
  clsGame game_;
  NoBoxes dialogs_;
  BookInMemory booking_{game_, player_, dialogs_};
  NetworkStake networkStake_;
  CampaignResult result_;
  std::size_t bought_ = 0;  // swaps done
  int newest_ = 0;          // the tile that was revealed last
  bool earning_ = false;
};

}  // namespace

CampaignResult PlayCampaign(const CampaignHabits& habits, Strategy& strategy, Random& random) {
  return Campaign(habits, strategy, random).Play();
}

}  // namespace kv
