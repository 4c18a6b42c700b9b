#include <gtest/gtest.h>

#include <stdexcept>

#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"
#include "cards/modCards.h"

namespace kv {
namespace {

TEST(CardArrays, IndexesOutsideTheTableAreErrors) {
  clsCardArray cards;
  clsDeckArray deck;
  for (const auto& [kind, number] : {std::pair{5, 1}, {0, 1}, {1, 7}, {1, 0}, {-1, 1}}) {
    EXPECT_THROW(static_cast<void>(cards.Value(kind, number)), std::out_of_range);
    EXPECT_THROW(cards.setValue(kind, number, 1), std::out_of_range);
  }
  for (const int index : {0, 11, -1}) {
    EXPECT_THROW(static_cast<void>(deck.Value(index)), std::out_of_range);
    EXPECT_THROW(deck.setValue(index, CardCode("ps1")), std::out_of_range);
  }
}

TEST(CardArrays, CopiesAreIndependent) {
  clsCardArray cards;
  bool found = false;
  cards.searchFor(0, found);
  EXPECT_TRUE(found);
  cards.Fill(10);
  cards.searchFor(0, found);
  EXPECT_FALSE(found);
  clsCardArray copy;
  copy.CopyArray(cards);
  cards.setValue(4, 6, 3);
  EXPECT_EQ(CountCards(copy.getValue()), 240);
  EXPECT_EQ(CountCards(cards.getValue()), 233);

  clsDeckArray deck;
  EXPECT_EQ(deck.Value(1).text(), "0");
  deck.Fill(3);
  EXPECT_EQ(deck.Value(10).text(), "3");
  deck.DefaultDeckMP();
  EXPECT_EQ(deck.Value(7).text(), "ms1");
  deck.DefaultDeckSP();
  EXPECT_EQ(deck.Value(10).text(), "ps5");
}

TEST(CardHelpers, CountsAndFindsInsideTheBounds) {
  clsDeckArray hand;
  hand.setValue(2, CardCode("00"));
  hand.setValue(4, CardCode("00"));
  const auto codes = hand.getValue();
  EXPECT_EQ(CountValue(codes, CardCode("00"), -2000000000, 2000000000), 2);
  EXPECT_EQ(CountValue(codes, CardCode("00"), 3, 4), 1);
  EXPECT_EQ(CountValue(codes, CardCode("00"), 11, 20), 0);
  EXPECT_EQ(FindValue(codes, CardCode("00")), 2);
  EXPECT_EQ(FindValue(codes, CardCode("ps1")), -1);
  EXPECT_EQ(Max(3, -2), 3);
  EXPECT_EQ(Min(3, -2), -2);
}

TEST(CardHelpers, TheTemplateControlIsNeverFound) {
  struct Control {
    std::string code;
    [[nodiscard]] const std::string& Card() const { return code; }
  };
  Control first{""};
  Control second{"ps3"};
  EXPECT_EQ(FindCardControl(std::vector<Control*>{&second}, "ps3"), -1);
  EXPECT_EQ(FindCardControl(std::vector<Control*>{&second, &first, &second}, "ps3"), 2);
}

}  // namespace
}  // namespace kv
