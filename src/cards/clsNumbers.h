// One number in a box, so that the player record and the match record can share a counter: both hold the same
// box, and a change through one is seen through the other.
#pragma once

#include <cstdint>

namespace kv {

struct clsLong {
  std::int32_t Value = 0;
};

struct clsInteger {
  std::int16_t Value = 0;
};

}  // namespace kv
