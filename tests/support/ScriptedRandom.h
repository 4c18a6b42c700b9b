// Chance from a list: the test names every number that is drawn, and drawing one too many is an error.
#pragma once

#include <deque>
#include <initializer_list>
#include <stdexcept>

#include "platform/Random.h"

namespace kv::test {

class ScriptedRandom final : public Random {
 public:
  enum class AtEnd { Throw, RepeatLast };

  explicit ScriptedRandom(std::initializer_list<double> numbers, AtEnd atEnd = AtEnd::Throw)
      : numbers_(numbers), atEnd_(atEnd) {}

  void Randomize() override { ++randomized; }
  [[nodiscard]] double Rnd() override {
    if (numbers_.empty()) throw std::logic_error("the test named too few random numbers");
    const double number = numbers_.front();
    if (numbers_.size() > 1 || atEnd_ == AtEnd::Throw) numbers_.pop_front();
    return number;
  }
  void Add(double number) { numbers_.push_back(number); }
  [[nodiscard]] std::size_t Left() const { return numbers_.size(); }

  int randomized = 0;

 private:
  std::deque<double> numbers_;
  AtEnd atEnd_;
};

}  // namespace kv::test
