// Ten card codes: a side deck, or a hand in entries 1 to 4. An index outside 1 to 10 throws
// std::out_of_range.
#pragma once

#include <array>
#include <cstdint>

#include "cards/CardCode.h"

namespace kv {

inline constexpr int kDeckSize = 10;
inline constexpr int kHandSize = 4;

class clsDeckArray {
 public:
  /// Every entry starts as "0".
  clsDeckArray() { Fill(0); }

  void CopyArray(const clsDeckArray& source) { codes_ = source.codes_; }
  /// The side deck a network player starts with.
  void DefaultDeckMP();
  /// The side deck a campaign player starts with.
  void DefaultDeckSP();
  /// Every entry becomes the decimal text of the number.
  void Fill(std::int16_t number);
  [[nodiscard]] std::array<CardCode, kDeckSize> getValue() const { return codes_; }
  void setValue(int index, CardCode code) {
    codes_.at(static_cast<std::size_t>(index) - 1) = std::move(code);
  }
  [[nodiscard]] const CardCode& Value(int index) const {
    return codes_.at(static_cast<std::size_t>(index) - 1);
  }

  /// Writes all ten entries.
  void setAll(const std::array<const char*, kDeckSize>& codes);

  friend bool operator==(const clsDeckArray&, const clsDeckArray&) = default;

 private:
  std::array<CardCode, kDeckSize> codes_;
};

}  // namespace kv
