// Chance. The rules draw from this interface alone; tests script it, simulations seed it.
#pragma once

#include <cstdint>
#include <random>

namespace kv {

class Random {
 public:
  virtual ~Random() = default;
  /// Reseeds the generator; simulations and tests may leave it as it is.
  virtual void Randomize() = 0;
  /// A uniform number in [0, 1).
  [[nodiscard]] virtual double Rnd() = 0;
};

/// Seeded from the system's entropy; Randomize stirs in new entropy.
class SystemRandom final : public Random {
 public:
  SystemRandom();
  void Randomize() override;
  [[nodiscard]] double Rnd() override;

 private:
  std::random_device entropy_;
  std::uint64_t state_;
};

/// A repeatable sequence (splitmix64, Steele, Lea and Flood 2014); Randomize changes nothing.
class SeededRandom final : public Random {
 public:
  explicit SeededRandom(std::uint64_t seed) : state_(seed) {}
  void Randomize() override {}
  [[nodiscard]] double Rnd() override;

 private:
  std::uint64_t state_;
};

}  // namespace kv
