// One side of a running match as its strategy sees it. They go dead when the match has left the turn: a
// strategy that is still running then changes nothing any more.
#pragma once

#include <cstdint>

#include "ai/AiOperations.h"
#include "ai/Strategy.h"
#include "match/MatchState.h"

namespace kv {

class MatchEngine;

class SideOperations final : public AiOperations {
 public:
  SideOperations(MatchEngine& engine, Seat seat) : engine_(engine), seat_(seat) {}

  /// Lets `strategy` play one turn of this side.
  void Ask(Strategy& strategy);

  [[nodiscard]] int AI_CardCount() const override;
  [[nodiscard]] int AI_FindCard(int change) override;
  [[nodiscard]] int AI_FindCardType(std::string_view type) const override;
  [[nodiscard]] int AI_TestInvert(int a, int b) const override;
  void AI_PlayCard(int slot) override;
  void AI_EndTurn() override;
  void AI_Stand() override;
  [[nodiscard]] int Total() const override;
  [[nodiscard]] int TableCount() const override;
  void SetHandCode(int slot, const CardCode& code) override;

 private:
  /// False once the screen has closed or the match has left the turn in which the strategy was asked.
  [[nodiscard]] bool mayAct() const;

  MatchEngine& engine_;
  Seat seat_;
  std::uint32_t epoch_ = 0;  // in which the running strategy was asked
  bool runs_ = false;
};

}  // namespace kv
