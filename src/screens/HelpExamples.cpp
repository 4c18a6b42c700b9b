#include "screens/HelpExamples.h"

#include <cstdlib>

namespace kv {
namespace {

/// Whether a 2&4 or 3&6 card turns this one.
bool Turns(const CardCode& played, const CardCode& card) {
  const int size = std::abs(card.cardValue());
  if (played.type() == CardType::Flip24) return size == 2 || size == 4;
  return played.type() == CardType::Flip36 && (size == 3 || size == 6);
}

}  // namespace

std::span<const HelpExample> HelpExamples() {
  static const std::vector<HelpExample> examples = {
      {"ps3", {"no10", "no4"}, "ps3", "ps3", "14 on the table: 17."},
      {"ms4", {"no10", "no6", "no7"}, "ms4", "ms4", "23 after the draw: 19, and the set goes on."},
      {"fp2",
       {"no10", "no8"},
       "fp2",
       "fp2",
       "18 becomes 20, or 22 becomes 20 after a press of the button below it."},
      {"s1-1",
       {"no10", "no9"},
       "s11",
       "s11",
       "19 to 20 is a loss; as the last card 19 and 1 is a tie, and yours."},
      {"s299", {"no5", "no7"}, "s299", "s27", "A drawn 7 lies there: it counts 7 once more."},
      {"s399",
       {"no4", "no2", "no10"},
       "s399",
       "s300",
       "4, 2 and 10 are 16; turned they are -4, -2 and 10: 4."},
      {"s499", {"no6", "no10"}, "s499", "s400", "6 and 10 are 16; turned they are -6 and 10: 4."},
      {"s599", {"no10", "no8"}, "s51", "s51", "18 becomes 19 or 20; 21 becomes 20 or 19."},
  };
  return examples;
}

std::vector<CardCode> TableBefore(const HelpExample& example) {
  return {example.table.begin(), example.table.end()};
}

std::vector<CardCode> TableAfter(const HelpExample& example) {
  std::vector<CardCode> table = TableBefore(example);
  const CardCode played(example.played);
  for (CardCode& card : table) {
    if (Turns(played, card)) card = card.Inverted();
  }
  table.emplace_back(example.landed);
  return table;
}

int SumOf(const std::vector<CardCode>& table) {
  int sum = 0;
  for (const CardCode& card : table) sum += card.cardValue();
  return sum;
}

}  // namespace kv
