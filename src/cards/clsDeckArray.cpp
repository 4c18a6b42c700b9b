#include "cards/clsDeckArray.h"

#include <algorithm>

namespace kv {

void clsDeckArray::DefaultDeckMP() {
  setAll({"ps1", "ps2", "ps3", "ps4", "ps5", "ps6", "ms1", "ms2", "ms3", "ms4"});
}

void clsDeckArray::DefaultDeckSP() {
  setAll({"ps1", "ps1", "ps2", "ps2", "ps3", "ps3", "ps4", "ps4", "ps5", "ps5"});
}

void clsDeckArray::Fill(std::int16_t number) {
  codes_.fill(CardCode(std::to_string(number)));
}

void clsDeckArray::setAll(const std::array<const char*, kDeckSize>& codes) {
  std::transform(codes.begin(), codes.end(), codes_.begin(), [](const char* code) { return CardCode(code); });
}

}  // namespace kv
