// The strategies against a table of their own: hand, table and totals are named, the calls are recorded.
#include <gtest/gtest.h>

#include "ai/HandSearch.h"
#include "ai/clsAI_Ember.h"
#include "ai/clsAI_Normal.h"

namespace kv {
namespace {

/// What the computer holds and sees. Card values on the table are given; the rest of the total is a plain
/// card.
struct Situation {
  std::vector<const char*> hand;
  int total = 0;
  int oppTotal = 0;
  bool uStand = false;
  int uWins = 0;
  std::vector<const char*> table{};  // filled up to `count` cards and to the total
  int count = 3;
};

class FakeSide final : public AiOperations {
 public:
  explicit FakeSide(const Situation& situation) {
    for (int slot = 1; slot <= kHandSize; ++slot) {
      const auto i = static_cast<std::size_t>(slot) - 1;
      hand.setValue(slot, i < situation.hand.size() ? CardCode(situation.hand[i]) : EmptiedSlot());
    }
    for (const char* code : situation.table) table.emplace_back(code);
    while (static_cast<int>(table.size()) + 1 < situation.count) table.insert(table.begin(), CardCode("no0"));
    if (static_cast<int>(table.size()) < situation.count) {
      table.insert(table.begin(), CardCode(CardType::MainDeck, situation.total - Total()));
    }
  }

  int AI_CardCount() const override { return CountHand(hand); }
  int AI_FindCard(int change) override { return FindHandCard(hand, table, Total(), change); }
  int AI_FindCardType(std::string_view type) const override { return FindHandType(hand, type); }
  int AI_TestInvert(int a, int b) const override { return TestInvert(table, Total(), a, b); }
  void AI_PlayCard(int slot) override {
    if (slot == 0) return;
    played += (played.empty() ? "" : " ") + hand.Value(slot).text();
    table.push_back(hand.Value(slot));
    hand.setValue(slot, EmptiedSlot());
  }
  void AI_EndTurn() override { ending += "end"; }
  void AI_Stand() override { ending += "stand"; }
  int Total() const override {
    int sum = 0;
    for (const CardCode& card : table) sum += card.cardValue();
    return sum;
  }
  int TableCount() const override { return static_cast<int>(table.size()); }
  void SetHandCode(int slot, const CardCode& code) override { hand.setValue(slot, code); }

  clsDeckArray hand;
  std::vector<CardCode> table;
  std::string played;
  std::string ending;
};

/// "ps3 -> stand": what was played, and how the turn was closed.
std::string TurnOf(Strategy&& strategy, const Situation& s) {
  FakeSide side(s);
  strategy.AI(side, s.total, s.oppTotal, s.uWins, 0, s.uStand, false);
  return side.played + " -> " + side.ending;
}
std::string Normal(const Situation& s) {
  return TurnOf(clsAI_Normal(), s);
}
std::string Ember(const Situation& s) {
  return TurnOf(clsAI_Ember(), s);
}

TEST(HandSearch, EmptyHandsHoldNothing) {
  FakeSide side({.hand = {}});
  EXPECT_EQ(side.AI_CardCount(), 0);
  for (int change = -24; change <= 20; ++change) EXPECT_EQ(side.AI_FindCard(change), 0);
  EXPECT_EQ(side.AI_FindCardType("s1"), 0);
}

TEST(HandSearch, AProbeChoosesTheSign) {
  FakeSide side({.hand = {"fl3", "s599", "s199"}});
  EXPECT_EQ(side.AI_FindCard(-3), 1);
  EXPECT_EQ(side.hand.Value(1).text(), "fm-3");
  EXPECT_EQ(side.AI_FindCard(3), 1);
  EXPECT_EQ(side.hand.Value(1).text(), "fp3");
  EXPECT_EQ(side.AI_FindCard(2), 2);
  EXPECT_EQ(side.hand.Value(2).text(), "s52");
  EXPECT_EQ(side.AI_FindCard(-1), 2) << "the lower slot of two that match";
  EXPECT_EQ(side.hand.Value(2).text(), "s5-1");
  EXPECT_EQ(side.AI_FindCard(5), 0);
}

TEST(HandSearch, CardsAreMatchedLiterally) {
  FakeSide side({.hand = {"ms4", "ms-2", "s299"}, .table = {"ps3", "no7"}, .count = 2});
  EXPECT_EQ(side.AI_FindCard(4), 1) << "a minus card without its sign counts as written";
  EXPECT_EQ(side.AI_FindCard(-4), 0);
  EXPECT_EQ(side.AI_FindCard(-2), 2);
  EXPECT_EQ(side.AI_FindCard(7), 3);
  EXPECT_EQ(side.hand.Value(3).text(), "s27");
  EXPECT_EQ(side.AI_FindCardType("S2"), 0);
}

TEST(HandSearch, InvertingTurnsEveryCardOfThatValue) {
  FakeSide side({.hand = {"s399"}, .table = {"no5", "no4", "ms-2", "s26"}, .count = 4});
  EXPECT_EQ(side.AI_TestInvert(2, 4), 13 - 8 + 4);
  EXPECT_EQ(side.AI_TestInvert(3, 6), 13 - 12);
  EXPECT_EQ(side.AI_FindCard(-4), 1);
  FakeSide plain({.hand = {"s399"}, .table = {"no5", "no7"}, .count = 2});
  EXPECT_EQ(plain.AI_FindCard(0), 1);
}

TEST(Normal, StandsAtOnce) {
  EXPECT_EQ(Normal({.hand = {"ps1"}, .total = 20, .oppTotal = 5}), " -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1"}, .total = 18, .oppTotal = 17, .uStand = true}), " -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1"}, .total = 12, .oppTotal = 17, .count = 9}), " -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1"}, .total = 9}), " -> end");
}

TEST(Normal, TurnsALongTable) {
  const std::vector<const char*> fours = {"no4", "no4", "no4", "no2"};
  EXPECT_EQ(Normal({.hand = {"ps1", "s399"}, .total = 18, .oppTotal = 3, .table = fours, .count = 5}),
            "s399 -> end");
  EXPECT_EQ(Normal({.hand = {"ps1", "s399"}, .total = 15, .oppTotal = 3, .table = fours, .count = 5}),
            " -> end");
  const std::vector<const char*> sixes = {"no6", "no6", "no3", "no1"};
  EXPECT_EQ(Normal({.hand = {"s499"}, .total = 19, .oppTotal = 3, .table = sixes, .count = 5}),
            "s499 -> end");
}

TEST(Normal, MakesTwenty) {
  EXPECT_EQ(Normal({.hand = {"ps6"}, .total = 14, .oppTotal = 12}), "ps6 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1", "s11"}, .total = 19, .oppTotal = 20, .uStand = true}), "s11 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1", "s11"}, .total = 19, .oppTotal = 18}), "ps1 -> stand");
  EXPECT_EQ(Normal({.hand = {"ms-1", "s11"}, .total = 21, .oppTotal = 20, .uStand = true}), "s1-1 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1", "ps3", "ps4"}, .total = 16, .oppTotal = 18, .uStand = true}),
            "ps4 -> stand");
}

TEST(Normal, TakesTheNinthCard) {
  EXPECT_EQ(Normal({.hand = {"ps1", "ps2", "ms-3"}, .total = 17, .oppTotal = 19, .count = 8}),
            "ms-3 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps5"}, .total = 17, .oppTotal = 12, .count = 8}), " -> end");
}

TEST(Normal, BeatsOrTiesAStandingHuman) {
  EXPECT_EQ(Normal({.hand = {"ps1", "ps3"}, .total = 16, .oppTotal = 18, .uStand = true}), "ps3 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps1", "ps3"}, .total = 16, .oppTotal = 18}), " -> end");
  EXPECT_EQ(Normal({.hand = {"s11"}, .total = 18, .oppTotal = 19, .uStand = true}), "s11 -> stand");
  EXPECT_EQ(Normal({.hand = {"s11"}, .total = 15, .oppTotal = 16, .uStand = true}), " -> end")
      << "a tie below seventeen is not worth the card";
}

TEST(Normal, ComesBackFromOverTwenty) {
  EXPECT_EQ(Normal({.hand = {"fl4"}, .total = 23, .oppTotal = 15}), "fm-4 -> stand");
  EXPECT_EQ(Normal({.hand = {"fl4"}, .total = 23, .oppTotal = 20}), " -> end");
  EXPECT_EQ(Normal({.hand = {"ms-5"}, .total = 23, .oppTotal = 20, .uWins = 2}), "ms-5 -> end");
  EXPECT_EQ(Normal({.hand = {"ms-5"}, .total = 23, .oppTotal = 18, .uWins = 2}), "ms-5 -> stand");
  EXPECT_EQ(Normal({.hand = {"ms-5"}, .total = 23, .oppTotal = 18, .uWins = 1}), " -> end");
  EXPECT_EQ(Normal({.hand = {"ms-6"}, .total = 25, .oppTotal = 20, .uWins = 2, .count = 8}), "ms-6 -> stand")
      << "the ninth card wins";
  EXPECT_EQ(TurnOf(clsAI_Normal(clsAI_Normal::AfterRescue::Stand),
                   {.hand = {"ms-6"}, .total = 22, .oppTotal = 18, .uWins = 2}),
            "ms-6 -> stand");
}

TEST(Normal, SettlesOnNineteen) {
  EXPECT_EQ(Normal({.hand = {"ps3"}, .total = 16, .oppTotal = 12, .uWins = 1}), "ps3 -> stand");
  EXPECT_EQ(Normal({.hand = {"ps3"}, .total = 16, .oppTotal = 12, .uWins = 0}), " -> end");
  EXPECT_EQ(Normal({.hand = {"ps3", "ms-5"}, .total = 16, .oppTotal = 12, .uWins = 1}), " -> end");
  EXPECT_EQ(Normal({.hand = {"ps3"}, .total = 16, .oppTotal = 20, .uWins = 1}), " -> end");
  EXPECT_EQ(Normal({.hand = {"s399"}, .total = 15, .oppTotal = 12, .uWins = 1, .table = {"no-2"}}), " -> end")
      << "an inverting card is kept";
}

TEST(Normal, EndsOrStandsByDefault) {
  EXPECT_EQ(Normal({.hand = {"ps5"}, .total = 18, .oppTotal = 17}), " -> end");
  EXPECT_EQ(Normal({.hand = {}, .total = 18, .oppTotal = 17}), " -> stand");
  EXPECT_EQ(Normal({.hand = {}, .total = 16, .oppTotal = 12}), " -> end");
  EXPECT_EQ(Normal({.hand = {"ps5"}, .total = 19, .oppTotal = 19}), " -> stand");
  EXPECT_EQ(Normal({.hand = {"ps5"}, .total = 19, .oppTotal = 19, .uWins = 2}), " -> end");
}

TEST(Ember, AimsByItsReserve) {
  EXPECT_EQ(Ember({.hand = {"ps6"}, .total = 14, .oppTotal = 10}), "ps6 -> stand");
  EXPECT_EQ(Ember({.hand = {"ps2", "ms-6"}, .total = 17, .oppTotal = 15}), "ps2 -> stand");
  EXPECT_EQ(Ember({.hand = {"ps2"}, .total = 17, .oppTotal = 15}), " -> end");
  EXPECT_EQ(Ember({.hand = {"ps1", "ms-4"}, .total = 17, .oppTotal = 15}), "ps1 -> stand");
  EXPECT_EQ(Ember({.hand = {"ps2"}, .total = 12, .oppTotal = 18}), " -> end");
  EXPECT_EQ(Ember({.hand = {}, .total = 20, .oppTotal = 18}), " -> stand");
  EXPECT_EQ(Ember({.hand = {}, .total = 19, .oppTotal = 18}), " -> stand");
  EXPECT_EQ(Ember({.hand = {}, .total = 17, .oppTotal = 16, .uStand = true}), " -> stand");
}

TEST(Ember, RescuesItselfWhenItMatters) {
  EXPECT_EQ(Ember({.hand = {"ps1", "ps2"}, .total = 24, .oppTotal = 19, .uWins = 1}), " -> end");
  EXPECT_EQ(Ember({.hand = {"ms-5"}, .total = 24, .oppTotal = 15}), "ms-5 -> stand");
  EXPECT_EQ(Ember({.hand = {"ms-6"}, .total = 22, .oppTotal = 15}), "ms-6 -> end")
      << "16 is not enough to stand";
  EXPECT_EQ(Ember({.hand = {"ms-5"}, .total = 24, .oppTotal = 18}), " -> end");
  EXPECT_EQ(Ember({.hand = {"ms-5"}, .total = 24, .oppTotal = 18, .uWins = 2}), "ms-5 -> stand");
  EXPECT_EQ(Ember({.hand = {"ms-6"}, .total = 22, .oppTotal = 15, .count = 8}), "ms-6 -> stand");
}

}  // namespace
}  // namespace kv
