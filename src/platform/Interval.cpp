#include "platform/Interval.h"

#include <cmath>

namespace kv {

Interval WilsonInterval(double hits, std::int64_t trials) {
  if (trials == 0) return {0, 1};
  constexpr double z = 1.959964;  // 97.5 % point of the standard normal distribution
  const auto n = static_cast<double>(trials);
  const double p = hits / n;
  const double centre = (p + z * z / (2 * n)) / (1 + z * z / n);
  const double half = z * std::sqrt(p * (1 - p) / n + z * z / (4 * n * n)) / (1 + z * z / n);
  return {centre - half, centre + half};
}

}  // namespace kv
