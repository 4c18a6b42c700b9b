// Every way through small collections and thin purses: whatever is clicked, Continue can be reached again.
#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>

#include "campaign/CampaignFixture.h"

namespace kv::test {
namespace {

constexpr const char* kForeign = "ps9";  // no collection holds it: once taken out it is gone
constexpr std::array<CardPlace, 2> kPlaces = {{{1, 6}, {3, 6}}};  // what is clicked in the banks

/// One state of the desk. Which slot of the deck a card lies in makes no difference to what can be clicked.
struct Spot {
  std::int32_t credits = 0;
  std::vector<std::string> deck = {};
  std::array<int, kPlaces.size()> counts{};
  CardView view = CardView::Deck;
  int picked = -1;  // of kPlaces

  auto operator<=>(const Spot&) const = default;
};

class CardDeskWaysTest : public CampaignFixture {
 protected:
  std::unique_ptr<CardDesk> Set(const Spot& spot) {
    player.Credits->Value = spot.credits;
    for (int slot = 1; slot <= kDeckSize; ++slot) {
      const auto at = static_cast<std::size_t>(slot) - 1;
      player.Deck->setValue(slot, at < spot.deck.size() ? CardCode(spot.deck[at]) : CardCode());
    }
    for (std::size_t i = 0; i < kPlaces.size(); ++i) {
      player.Cards->setValue(kPlaces[i].kind, kPlaces[i].value, static_cast<std::int16_t>(spot.counts[i]));
    }
    MeetDeckView();
    auto desk = std::make_unique<CardDesk>(game, player, networkStake);
    desk->YourDeck(spot.view);
    if (spot.picked >= 0) desk->ClickBank(kPlaces.at(static_cast<std::size_t>(spot.picked)));
    return desk;
  }
  static Spot Read(const CardDesk& desk, int picked) {
    Spot spot{.credits = desk.Credits(), .view = desk.view()};
    for (int slot = 1; slot <= kDeckSize; ++slot) {
      if (!desk.Slot(slot).empty()) spot.deck.push_back(desk.Slot(slot).text());
    }
    std::ranges::sort(spot.deck);
    for (std::size_t i = 0; i < kPlaces.size(); ++i) spot.counts[i] = desk.Bank(kPlaces[i]).count;
    spot.picked = desk.Shop().card.empty() ? -1 : picked;
    return spot;
  }
  /// A deal costs its price or brings its value, and nothing else moves credits or makes cards.
  static void CheckAccount(const Spot& from, const Spot& to, bool deals) {
    const auto owned = [](const Spot& spot) {
      return static_cast<int>(spot.deck.size()) + std::accumulate(spot.counts.begin(), spot.counts.end(), 0);
    };
    const bool gone = std::ranges::count(from.deck, kForeign) > std::ranges::count(to.deck, kForeign);
    const int more = owned(to) - owned(from) + (gone ? 1 : 0);
    const bool dealt = deals && more != 0;
    const CardPlace place = dealt ? kPlaces.at(static_cast<std::size_t>(from.picked)) : CardPlace{};
    EXPECT_TRUE(dealt ? more == (from.view == CardView::Buy ? 1 : -1) : more == 0);
    EXPECT_EQ(to.credits - from.credits, !dealt     ? 0
                                         : more > 0 ? -CardPrice(place.kind, place.value)
                                                    : SellValue(place));
    EXPECT_GE(to.credits, 0);
  }
  /// Where each possible click leads from here, the deal first.
  std::vector<Spot> Clicks(const Spot& from) {
    std::vector<Spot> next;
    const auto add = [&](const auto& click, int picked) {
      const auto desk = Set(from);
      click(*desk);
      next.push_back(Read(*desk, picked));
      CheckAccount(from, next.back(), next.size() == 1);
    };
    add([](CardDesk& desk) { static_cast<void>(desk.Trade()); }, from.picked);
    for (int i = 0; i < static_cast<int>(kPlaces.size()); ++i) {
      add([i](CardDesk& desk) { desk.ClickBank(kPlaces.at(static_cast<std::size_t>(i))); }, i);
    }
    for (std::size_t i = 0; i < from.deck.size(); ++i) {
      if (i > 0 && from.deck[i] == from.deck[i - 1]) continue;
      add([i](CardDesk& desk) { desk.RemoveCard(static_cast<int>(i) + 1); }, from.picked);
    }
    const DeskButtons buttons = Set(from)->Buttons();
    if (buttons.deck) add([](CardDesk& desk) { desk.YourDeck(CardView::Deck); }, -1);
    if (buttons.buy) add([](CardDesk& desk) { desk.YourDeck(CardView::Buy); }, -1);
    if (buttons.sell) add([](CardDesk& desk) { desk.YourDeck(CardView::Sell); }, -1);
    return next;
  }
  /// The states within reach that Continue cannot be reached from; `seen` counts all.
  std::vector<Spot> DeadEnds(const Spot& start, std::size_t& seen) {
    std::map<Spot, std::vector<Spot>> cameFrom{{start, {}}};
    std::deque<Spot> open{start};
    std::deque<Spot> saved;
    for (; !open.empty(); open.pop_front()) {
      const Spot from = open.front();
      const bool next = Set(from)->Buttons().next;
      EXPECT_EQ(next, from.deck.size() == kDeckSize && from.view == CardView::Deck);
      if (next) saved.push_back(from);
      for (const Spot& to : Clicks(from)) {
        const auto [found, fresh] = cameFrom.try_emplace(to);
        found->second.push_back(from);
        if (fresh) open.push_back(to);
      }
    }
    seen = cameFrom.size();
    for (; !saved.empty(); saved.pop_front()) {
      if (const auto node = cameFrom.extract(saved.front())) {
        for (const Spot& from : node.mapped()) saved.push_back(from);
      }
    }
    std::vector<Spot> dead;
    for (const auto& [spot, from] : cameFrom) dead.push_back(spot);
    return dead;
  }
};

TEST_F(CardDeskWaysTest, NoClickLeadsToADeckThatCannotBeFilled) {
  const std::vector<std::string> sixes(kDeckSize, "ps6");
  std::vector<std::string> foreign = sixes;
  foreign.back() = kForeign;
  for (const Spot& start :
       {Spot{.credits = 0, .deck = sixes}, Spot{.credits = 259, .deck = sixes},
        Spot{.credits = 0, .deck = sixes, .counts = {0, 2}}, Spot{.credits = 320, .deck = sixes},
        Spot{.credits = 99, .deck = foreign}, Spot{.credits = 100, .deck = foreign}}) {
    std::size_t seen = 0;
    const std::vector<Spot> dead = DeadEnds(start, seen);
    EXPECT_GT(seen, 10U);

    ASSERT_TRUE(dead.empty()) << dead.size() << " of " << seen << ", one with " << dead[0].credits
                              << " credits and " << dead[0].deck.size() << " cards in the deck";
  }
}

TEST_F(CardDeskWaysTest, ADealThatStrandsTheDeckIsRefusedWithItsReason) {
  const auto desk = Set({.credits = 0, .deck = std::vector<std::string>(kDeckSize, "ps6")});
  desk->YourDeck(CardView::Sell);
  ASSERT_TRUE(desk->RemoveCard(4));
  ASSERT_EQ(desk->ClickBank({1, 6}), BankClick::Picked);
  EXPECT_EQ(desk->Shop().refusal, "the deck needs this card");
  EXPECT_FALSE(desk->Trade());
  EXPECT_EQ(desk->Credits(), 0);

  const auto poor = Set({.credits = 700, .deck = std::vector<std::string>(kDeckSize - 2, "ps6")});
  EXPECT_FALSE(poor->Buttons().next);
  EXPECT_TRUE(poor->Buttons().buy) << "the last two cards are in the shop and nowhere else";
  poor->YourDeck(CardView::Buy);
  ASSERT_EQ(poor->ClickBank({2, 1}), BankClick::Picked);
  EXPECT_EQ(poor->Shop().refusal, "the deck comes first") << "40 credits are left for the tenth";
  EXPECT_FALSE(poor->Trade());
  ASSERT_EQ(poor->ClickBank({1, 1}), BankClick::Picked);
  EXPECT_EQ(poor->Shop().refusal, "");
  EXPECT_TRUE(poor->Trade());
}

}  // namespace
}  // namespace kv::test
