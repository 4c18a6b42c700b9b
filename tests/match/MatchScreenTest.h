// What the tests of the match screen share: both interface styles, and a setup for the present one.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/MatchScreen.h"
#include "support/ScreenHand.h"

namespace kv::test {

class MatchScreenTest : public testing::TestWithParam<const char*> {
 protected:
  MatchScreenSetup Setup() const { return {.style = GetParam()}; }
  [[nodiscard]] int StyleIndex() const { return std::string(GetParam()) == "Ember" ? 1 : 0; }
  [[nodiscard]] const MatchGrid& grid() const {
    return kMatchGrids.at(static_cast<std::size_t>(StyleIndex()));
  }
};

}  // namespace kv::test
