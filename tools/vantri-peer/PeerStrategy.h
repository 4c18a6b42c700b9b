// A strategy in the seat of a person: it may do only what a person can. A strategy notes the value that it
// expects of a doubling card on the card itself; a person's card doubles whatever lies last, and only in this
// form does another program take it.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "ai/Strategy.h"

namespace kv {

class PersonsHand final : public AiOperations {
 public:
  explicit PersonsHand(AiOperations& side) : side_(side) {}

  [[nodiscard]] int AI_CardCount() const override { return side_.AI_CardCount(); }
  [[nodiscard]] int AI_FindCard(int change) override { return side_.AI_FindCard(change); }
  [[nodiscard]] int AI_FindCardType(std::string_view type) const override {
    return side_.AI_FindCardType(type);
  }
  [[nodiscard]] int AI_TestInvert(int a, int b) const override { return side_.AI_TestInvert(a, b); }
  void AI_PlayCard(int slot) override {
    constexpr std::string_view kDouble = "s2";
    if (slot != 0 && AI_FindCardType(kDouble) == slot) {
      SetHandCode(slot, CardCode(std::string(kDouble) + std::to_string(kNotChosen)));
    }
    side_.AI_PlayCard(slot);
  }
  void AI_EndTurn() override { side_.AI_EndTurn(); }
  void AI_Stand() override { side_.AI_Stand(); }
  [[nodiscard]] int Total() const override { return side_.Total(); }
  [[nodiscard]] int TableCount() const override { return side_.TableCount(); }
  void SetHandCode(int slot, const CardCode& code) override { side_.SetHandCode(slot, code); }

 private:
  AiOperations& side_;
};

class PersonsStrategy final : public Strategy {
 public:
  explicit PersonsStrategy(std::unique_ptr<Strategy> mind) : mind_(std::move(mind)) {}
  void AI(AiOperations& side, int total, int oppTotal, int uWins, int oWins, bool uStand,
          bool oStand) override {
    PersonsHand hand(side);
    mind_->AI(hand, total, oppTotal, uWins, oWins, uStand, oStand);
  }

 private:
  std::unique_ptr<Strategy> mind_;
};

}  // namespace kv
