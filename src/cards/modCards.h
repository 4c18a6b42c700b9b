// Small helpers over cards and arrays, shared by the match and the card screens.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace kv {

[[nodiscard]] constexpr std::int32_t Max(std::int32_t a, std::int32_t b) {
  return a < b ? b : a;
}
[[nodiscard]] constexpr std::int32_t Min(std::int32_t a, std::int32_t b) {
  return b < a ? b : a;
}

/// The first index from 1 on whose control (a pointer to something with `Card()`) shows `code`; -1 if none.
/// Index 0 holds the hidden template and is never looked at.
template <typename Controls>
[[nodiscard]] int FindCardControl(const Controls& controls, std::string_view code) {
  const int size = static_cast<int>(std::size(controls));
  for (int i = 1; i < size; ++i) {
    if (controls[static_cast<std::size_t>(i)]->Card() == code) return i;
  }
  return -1;
}

/// The first index (counted from `lowerBound`) whose element equals `value`; -1 if none.
template <typename Array, typename Value>
[[nodiscard]] int FindValue(const Array& array, const Value& value, int lowerBound = 1) {
  const auto found = std::find(std::begin(array), std::end(array), value);
  return found == std::end(array) ? -1 : lowerBound + static_cast<int>(found - std::begin(array));
}

/// How many elements from `first` to `last` equal `value`; the range is cut to the array's own bounds.
template <typename Array, typename Value>
[[nodiscard]] int CountValue(const Array& array, const Value& value, std::int32_t first, std::int32_t last,
                             int lowerBound = 1) {
  const std::int32_t from = Max(first, lowerBound);
  const std::int32_t to = Min(last, lowerBound + static_cast<std::int32_t>(std::size(array)) - 1);
  if (from > to) return 0;
  const auto begin = std::begin(array);
  return static_cast<int>(std::count(begin + (from - lowerBound), begin + (to - lowerBound) + 1, value));
}

}  // namespace kv
