// How sure a measured chance is.
#pragma once

#include <cstdint>

namespace kv {

/// The 95 % interval of a proportion (Wilson score interval), as fractions.
struct Interval {
  double low = 0;
  double high = 0;
};
[[nodiscard]] Interval WilsonInterval(double hits, std::int64_t trials);

}  // namespace kv
