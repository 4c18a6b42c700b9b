// A hand by its codes: DealtHand({"ps3", "fp2"}). It only deals; slots without a code hold `none`.
#pragma once

#include <memory>
#include <vector>

#include "cards/clsDeckArray.h"

namespace kv::test {

[[nodiscard]] inline std::shared_ptr<clsDeckArray> DealtHand(const std::vector<const char*>& codes,
                                                             const CardCode& none = CardCode()) {
  auto hand = std::make_shared<clsDeckArray>();
  for (int slot = 1; slot <= kHandSize; ++slot) {
    const auto index = static_cast<std::size_t>(slot) - 1;
    hand->setValue(slot, index < codes.size() ? CardCode(codes[index]) : none);
  }
  return hand;
}

}  // namespace kv::test
