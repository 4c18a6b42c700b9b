// What the tests of the match screen share: both interface styles, and a setup for the present one.
#pragma once

#include <gtest/gtest.h>

#include "support/MatchScreen.h"
#include "support/ScreenHand.h"

namespace kv::test {

class MatchScreenTest : public testing::TestWithParam<const char*> {
 protected:
  MatchScreenSetup Setup(std::vector<int> draws = {}) const {
    return {.style = GetParam(), .draws = std::move(draws)};
  }
  /// A match of this style at the player's first turn, for as long as the test runs.
  MatchScreen& Begin(std::vector<int> draws, std::vector<const char*> hand = {"ps3", "fp2", "s11", "s51"}) {
    MatchScreenSetup setup = Setup(std::move(draws));
    setup.hand = std::move(hand);
    return Begin(setup);
  }
  /// The same with the player's options changed.
  MatchScreen& BeginWith(const std::function<void(clsPlayer&)>& options, std::vector<int> draws = {4}) {
    MatchScreenSetup setup = Setup(std::move(draws));
    setup.options = options;
    return Begin(setup);
  }
  MatchScreen& Begin(const MatchScreenSetup& setup) {
    match_ = std::make_unique<MatchScreen>(setup);
    match_->Begin();
    return *match_;
  }
  /// On the match that was begun last.
  [[nodiscard]] ScreenHand Hand() const { return ScreenHand(*match_->screen); }
  [[nodiscard]] int StyleIndex() const { return std::string(GetParam()) == "Ember" ? 1 : 0; }
  [[nodiscard]] const MatchGrid& grid() const {
    return kMatchGrids.at(static_cast<std::size_t>(StyleIndex()));
  }

 private:
  std::unique_ptr<MatchScreen> match_;
};

}  // namespace kv::test
