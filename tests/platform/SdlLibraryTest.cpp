// What becomes of the bytes of a wave file: samples, and the sum of those that sound together.
#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

#include "platform/SdlLibrary.h"
#include "platform/SoundMix.h"
#include "platform/Waves.h"

namespace kv {
namespace {

class SdlLibraryTest : public testing::Test {
 protected:
  [[nodiscard]] std::vector<std::int16_t> Decode(const std::string& wave) {
    why.clear();
    return library->Decode(wave, why);
  }

  const std::unique_ptr<SdlLibrary> library = SdlLibrary::Load();
  std::string why;
};

TEST_F(SdlLibraryTest, EveryUsualFormComesOutWithItsLengthAndItsLevel) {
  const WaveParts forms[] = {
      {.bits = 8, .frameSize = 1},
      {.bits = 16, .frameSize = 2},
      {.bits = 24, .frameSize = 3},
      {.bits = 32, .frameSize = 4},
      {.format = kFloats, .bits = 32, .frameSize = 4},
  };
  for (const WaveParts& form : forms) {
    const std::vector<std::int16_t> samples = Decode(form.Bytes());
    ASSERT_EQ(samples.size(), 2U * 4410) << form.bits << ": " << why;
    EXPECT_EQ(samples[0], samples[1]) << "the left is not the right";
    EXPECT_NEAR(*std::ranges::max_element(samples), form.level, 2) << form.bits;
    EXPECT_NEAR(*std::ranges::min_element(samples), -form.level, 2) << form.bits;
  }
  EXPECT_NEAR(static_cast<double>(Decode(WaveParts{.rate = 22050}.Bytes()).size()), 4 * 4410, 100);
  EXPECT_NEAR(static_cast<double>(Decode(WaveParts{.channels = 2, .frameSize = 4}.Bytes()).size()), 4410, 4);
}

TEST_F(SdlLibraryTest, WhatWouldBecomeHoursOfSamplesIsRefused) {
  const std::string hours = WaveParts{.rate = 1, .frames = 400000}.Bytes();
  EXPECT_TRUE(Decode(hours).empty());
  const std::string twoMinutes = WaveParts{.rate = 8000, .frames = 2 * 60 * 8000}.Bytes();
  EXPECT_TRUE(Decode(twoMinutes).empty());
  EXPECT_EQ(why, "it is longer than a minute");
  for (const std::uint32_t rate : {0U, 999U, 400000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    EXPECT_TRUE(Decode(WaveParts{.rate = rate}.Bytes()).empty()) << rate;
  }
  for (const std::uint32_t channels : {0U, 9U, 255U, 65535U}) {
    EXPECT_TRUE(Decode(WaveParts{.channels = channels, .frameSize = 2 * channels}.Bytes()).empty())
        << channels;
  }
  // The sizes that the file tells of itself are not believed.
  std::string boasting = WaveParts{}.Bytes();
  boasting.replace(40, 4, "\xFF\xFF\xFF\x7F");
  EXPECT_EQ(Decode(boasting).size(), 2U * 4410);
}

TEST_F(SdlLibraryTest, AFileThatIsCutOffSoundsAsFarAsItGoes) {
  const std::string whole = WaveParts{}.Bytes();
  const std::size_t head = whole.size() - 2 * 4410;
  for (std::size_t length = 0; length < whole.size(); length += length < 60 ? 1 : 997) {
    const std::vector<std::int16_t> samples = Decode(whole.substr(0, length));
    EXPECT_EQ(samples.size() / 2, length < head ? 0 : (length - head) / 2) << length;
    EXPECT_EQ(why.empty(), !samples.empty()) << length;
  }
}

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
