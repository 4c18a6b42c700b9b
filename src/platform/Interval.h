// How sure a rate is that was counted in trials.
#pragma once

#include <cstdint>

namespace kv {

struct Interval {
  double low = 0;
  double high = 1;
};

/// Wilson's interval of 95 % for a rate of `hits` in `trials`; 0 to 1 without trials. An estimate may count
/// as a part of a hit.
[[nodiscard]] Interval WilsonInterval(double hits, std::int64_t trials);

}  // namespace kv
