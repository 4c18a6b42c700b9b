#include "cards/clsCardArray.h"

#include <algorithm>

namespace kv {

void clsCardArray::searchFor(std::int16_t count, bool& found) const {
  found = std::any_of(table_.begin(), table_.end(), [count](const auto& row) {
    return std::find(row.begin(), row.end(), count) != row.end();
  });
}

void clsCardArray::Fill(std::int16_t count) {
  for (auto& row : table_) row.fill(count);
}

std::int32_t CountCards(const CardTable& table) {
  std::int32_t sum = 0;
  for (const auto& row : table) {
    for (const std::int16_t count : row) sum += count;
  }
  return sum;
}

}  // namespace kv
