// One example for each side card of the rules: what lies on the table, which card is played on it, and what
// comes of it. Plain values; that they tell the truth is proved by the match's own rules.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "cards/CardCode.h"

namespace kv {

struct HelpExample {
  const char* code;                // as the collection shows it
  std::vector<const char*> table;  // before
  const char* played;              // as it is when it leaves the hand
  const char* landed;              // as it lies then
  const char* text;
};
[[nodiscard]] std::span<const HelpExample> HelpExamples();

/// What lies there before and after, the played card included, and its sum.
[[nodiscard]] std::vector<CardCode> TableBefore(const HelpExample& example);
[[nodiscard]] std::vector<CardCode> TableAfter(const HelpExample& example);
[[nodiscard]] int SumOf(const std::vector<CardCode>& table);

}  // namespace kv
