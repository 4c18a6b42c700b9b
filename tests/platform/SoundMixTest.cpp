#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "platform/SoundMix.h"

namespace kv {
namespace {

using Samples = std::vector<std::int16_t>;
using testing::ElementsAre;

Samples Next(SoundMix& mix, std::size_t count) {
  Samples out(count, 99);
  mix.Take(out);
  return out;
}

TEST(SoundMix, AddsUpWhatSoundsTogetherAndFallsSilent) {
  SoundMix mix;
  const Samples low{1, 2, 3};
  const Samples high{10, 20, 30, 40, 50};
  EXPECT_THAT(Next(mix, 2), ElementsAre(0, 0));
  mix.Start(0, low);
  EXPECT_THAT(Next(mix, 2), ElementsAre(1, 2));
  mix.Start(1, high);
  EXPECT_THAT(Next(mix, 2), ElementsAre(13, 20));
  EXPECT_TRUE(mix.Sounding());
  EXPECT_THAT(Next(mix, 4), ElementsAre(30, 40, 50, 0));
  EXPECT_FALSE(mix.Sounding());
}

TEST(SoundMix, AVoiceThatSoundsAlreadyStartsAnewAndIsNotHeardTwice) {
  SoundMix mix;
  const Samples sound{1, 2, 3, 4};
  mix.Start(7, sound);
  EXPECT_THAT(Next(mix, 3), ElementsAre(1, 2, 3));
  mix.Start(7, sound);
  EXPECT_THAT(Next(mix, 3), ElementsAre(1, 2, 3));
  mix.Stop(6);
  EXPECT_TRUE(mix.Sounding());
  mix.Stop(7);
  EXPECT_THAT(Next(mix, 2), ElementsAre(0, 0));
}

TEST(SoundMix, WhatRunsOverIsCutAfterTheWholeSumAndTheVolume) {
  SoundMix mix;
  const Samples loud{30000, -30000, 30000, 30000};
  const Samples other{30000, -30000, 30000, 30000};
  const Samples against{0, 0, -30000, -30000};
  mix.Start(0, loud);
  mix.Start(1, other);
  mix.Start(2, against);
  EXPECT_THAT(Next(mix, 3), ElementsAre(32767, -32768, 30000));
  mix.setVolume(50);
  EXPECT_THAT(Next(mix, 1), ElementsAre(15000)) << "a change is heard at once";
  mix.Start(0, loud);
  mix.Start(1, other);
  EXPECT_THAT(Next(mix, 2), ElementsAre(30000, -30000));
  mix.setVolume(0);
  EXPECT_THAT(Next(mix, 1), ElementsAre(0));
  mix.setVolume(1000);
  EXPECT_THAT(Next(mix, 1), ElementsAre(32767));
}

}  // namespace
}  // namespace kv
