// What a card's code says, and the arrays that hold codes.
#include <gtest/gtest.h>

#include <stdexcept>

#include "cards/CardCode.h"
#include "cards/clsCardArray.h"
#include "cards/clsDeckArray.h"
#include "cards/modCards.h"
#include "support/Rows.h"

namespace kv::test {
namespace {

TEST(CardCode, EveryTypeHasItsValueCaptionAndFace) {
  for (const auto& [text, value, caption, slot] : Rows<const char*, int, const char*, int>{
           {"no7", 7, "7", 2},      {"no-4", -4, "-4", 2},  {"ps3", 3, "+3", 3},     {"ms3", -3, "-3", 4},
           {"ms-3", -3, "-3", 4},   {"pi3", -3, "-3", 3},   {"mi3", 3, "+3", 4},     {"fl3", 3, "±3", 5},
           {"fp3", 3, "+3", 5},     {"fm-3", -3, "-3", 6},  {"fm3", -3, "-3", 6},    {"fi3", -3, "-3", 5},
           {"fj3", 3, "+3", 6},     {"s199", 99, "±1T", 7}, {"s10", 0, "±1T", 7},    {"s11", 1, "+1T", 7},
           {"s1-1", -1, "-1T", 7},  {"s12", 2, "", 7},      {"s299", 99, "D", 7},    {"s27", 7, "7", 7},
           {"s399", 99, "2&&4", 7}, {"s300", 0, "0", 7},    {"s499", 99, "3&&6", 7}, {"s400", 0, "0", 7},
           {"s599", 99, "1±2", 7},  {"s52", 2, "+2", 7},    {"s5-1", -1, "-1", 7},   {"s63", 3, "", 7},
           {"un", 0, "", 1},        {"--", 0, "OOO", 1},    {"--5", 0, "OOO", 1},    {"00", 0, "", 1},
           {"", 0, "", 1},          {"PS3", 3, "+3", 3}}) {
    const CardCode code(text);
    EXPECT_EQ(code.text(), text);
    EXPECT_EQ(code.cardValue(), value) << text;
    EXPECT_EQ(code.Caption(), caption) << text;
    EXPECT_EQ(code.pictureSlot(), slot) << text;
  }
  EXPECT_TRUE(CardCode("un").captionHidden());
}

TEST(CardCode, UnreadableNumbersCountAsNothing) {
  for (const char* code : {"ps", "ps+3", "ps3x", "ps 3", "ps--3", "ps1.5", "ps99999", "p", "ps-"}) {
    EXPECT_EQ(CardCode(code).cardValue(), 0) << code;
    EXPECT_EQ(CardCode(code).text(), code);
  }
  EXPECT_EQ(CardCode("ms-32768").cardValue(), -32768);
  EXPECT_EQ(CardCode(CardType::Tiebreaker, -32768).FirstFlip().cardValue(), 32767);
}

TEST(CardCode, KeepsItsOwnSpelling) {
  const std::string longer = "ps" + std::string(400, '0') + "3";
  for (const std::string& text : {std::string(), std::string("0"), std::string("00"), std::string("5"),
                                  std::string("fl03"), std::string("PS1"), std::string("ms-0"), longer}) {
    const CardCode code(text);
    const CardCode copy = code;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.text(), text);
    EXPECT_EQ(copy, CardCode(text));
    EXPECT_EQ(copy.prefix(), text.substr(0, 2));
    EXPECT_EQ(copy.noCard(), text.empty() || text == "00") << text;
  }
  EXPECT_FALSE(CardCode("fl03") == CardCode("fl3"));
  EXPECT_FALSE(CardCode("PS1") == CardCode("ps1"));
  EXPECT_EQ(CardCode(CardType::Other, 5), CardCode("5"));
  EXPECT_EQ(CardCode("fl03").InHand().text(), "fp03");
  EXPECT_EQ(CardCode("S199").InHand().text(), "S199");
}

TEST(CardCode, SignsTurnUnderAnInvertingCard) {
  const std::pair<const char*, const char*> turned[] = {
      {"no4", "no-4"}, {"no-4", "no4"}, {"ps4", "pi4"}, {"ms-4", "mi4"}, {"pi4", "ps4"}, {"mi4", "ms4"},
      {"fp4", "fi4"},  {"fm-4", "fj4"}, {"fi4", "fp4"}, {"fj4", "fm4"},  {"s24", "s24"}, {"s52", "s52"}};
  for (const auto& [before, after] : turned) EXPECT_EQ(CardCode(before).Inverted().text(), after);
}

TEST(CardCode, FlipButtonsTurnHandCards) {
  for (const auto& [card, first, second] :
       Rows<const char*, const char*, const char*>{{"fp3", "fm3", "fp3"},
                                                   {"fm3", "fp3", "fm3"},
                                                   {"s11", "s1-1", "s11"},
                                                   {"s51", "s5-1", "s52"},
                                                   {"s5-2", "s52", "s5-1"},
                                                   {"ps3", "ps3", "ps3"}}) {
    EXPECT_EQ(CardCode(card).FirstFlip().text(), first);
    EXPECT_EQ(CardCode(card).SecondFlip().text(), second);
  }
  EXPECT_FALSE(CardCode("s299").hasFirstFlip());
  EXPECT_FALSE(CardCode("s11").hasSecondFlip());
}

TEST(CardCode, AHandHoldsChosenSigns) {
  for (const auto& [deck, hand] : Rows<const char*, const char*>{
           {"fl3", "fp3"}, {"s199", "s11"}, {"s599", "s51"}, {"s299", "s299"}, {"ms4", "ms4"}}) {
    EXPECT_EQ(CardCode(deck).InHand().text(), hand);
  }
}

TEST(CardPrice, FollowsTheTable) {
  EXPECT_EQ(CardPrice(2, 1), 660);
  EXPECT_EQ(CardPrice(4, 6), 0);
  EXPECT_EQ(CardPrice(203, 2), CardPrice(1, 2));
  EXPECT_EQ(CardPrice(207, 1), CardPrice(4, 1));
  for (const auto& [kind, value] : {std::pair{206, 1}, {0, 1}, {5, 1}, {1, 0}, {1, 7}, {-1, 3}}) {
    EXPECT_EQ(CardPrice(kind, value), 0);
  }
}

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
}  // namespace kv::test
