// A collection: how many cards of each kind and number somebody owns. The key bindings use the same table.
// An index outside the table is the caller's fault and throws std::out_of_range; nothing is clamped.
#pragma once

#include <array>
#include <cstdint>

namespace kv {

inline constexpr int kCardKinds = 4;    // 1 plus, 2 minus, 3 flip, 4 special
inline constexpr int kCardNumbers = 6;  // specials: 1 tiebreaker, 2 double, 3 2&4, 4 3&6, 5 one-or-two

/// Counts as a plain table; [kind - 1][number - 1].
using CardTable = std::array<std::array<std::int16_t, kCardNumbers>, kCardKinds>;

class clsCardArray {
 public:
  void CopyArray(const clsCardArray& source) { table_ = source.table_; }
  /// The count of kind 1 to 4 and number 1 to 6.
  [[nodiscard]] std::int16_t Value(int kind, int number) const {
    return table_.at(Row(kind)).at(Row(number));
  }
  [[nodiscard]] CardTable getValue() const { return table_; }
  /// `found` becomes true when any entry equals `count`.
  void searchFor(std::int16_t count, bool& found) const;
  void setValue(int kind, int number, std::int16_t count) { table_.at(Row(kind)).at(Row(number)) = count; }
  void Fill(std::int16_t count);

  friend bool operator==(const clsCardArray&, const clsCardArray&) = default;

 private:
  static std::size_t Row(int index) { return static_cast<std::size_t>(index) - 1; }

  CardTable table_{};
};

/// The number of cards in a collection.
[[nodiscard]] std::int32_t CountCards(const CardTable& table);

}  // namespace kv
