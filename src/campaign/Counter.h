// Wins, losses and disconnects are 16-bit counters. One that has reached its limit stays there: a player
// should not see wins turn negative.
#pragma once

#include <cstdint>
#include <limits>

namespace kv {

inline void Raise(std::int16_t& counter) {
  if (counter < std::numeric_limits<std::int16_t>::max()) ++counter;
}
inline void Lower(std::int16_t& counter) {
  if (counter > std::numeric_limits<std::int16_t>::min()) --counter;
}

}  // namespace kv
