#include "platform/Random.h"

namespace kv {
namespace {

double NextUniform(std::uint64_t& state) {
  std::uint64_t z = (state += 0x9E3779B97F4A7C15U);
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
  z ^= z >> 31U;
  return static_cast<double>(z >> 11U) * 0x1.0p-53;
}

}  // namespace

SystemRandom::SystemRandom() : state_(0) {
  Randomize();
}

void SystemRandom::Randomize() {
  state_ ^= (static_cast<std::uint64_t>(entropy_()) << 32U) | entropy_();
}

double SystemRandom::Rnd() {
  return NextUniform(state_);
}

double SeededRandom::Rnd() {
  return NextUniform(state_);
}

}  // namespace kv
