#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>

#include "platform/Files.h"
#include "presentation/Sounds.h"
#include "profile/clsPlayer.h"
#include "support/Rows.h"
#include "support/ScriptedDialogs.h"

namespace kv::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Remembers what was loaded and played. Buffer numbers start at 100, so that they cannot pass for entries.
class BufferLog final : public SoundDevice {
 public:
  int LoadBuffer(const std::string& wavePath) override {
    loaded.push_back(wavePath);
    return wavePath == broken ? -1 : 99 + static_cast<int>(loaded.size());
  }
  void PlayBuffer(int buffer) override { played.push_back(buffer - 99); }
  void PlayOnce(const std::string& wavePath) override { once.push_back(wavePath); }
  void setVolume(int /*percent*/) override {}

  std::vector<std::string> loaded;
  std::vector<int> played;  // entry numbers from 1
  std::vector<std::string> once;
  std::string broken;
};

class SoundsTest : public testing::Test {
 protected:
  /// The entries that sound when every name is asked for once.
  std::vector<int> Heard() {
    device.played.clear();
    for (std::size_t i = 1; i < kSoundNames.size(); ++i) sounds.PlayEffect(kSoundNames[i]);
    return device.played;
  }

  BufferLog device;
  Sounds sounds{device};
  ScriptedDialogs boxes;
  SeededRandom random{1};
  clsPlayer player{boxes, random};
};

TEST_F(SoundsTest, LoadsTheTableInOrderFromTheProgramFolder) {
  sounds.PlayEffect("click");
  EXPECT_THAT(device.played, IsEmpty()) << "nothing sounds before the table is loaded";
  sounds.InitEffects("/game");
  ASSERT_EQ(device.loaded.size(), 18U);
  EXPECT_EQ(device.loaded[0], "/game/Sounds/turn.wav");
  EXPECT_EQ(device.loaded[1], "/game/Sounds/turn.wav");
  EXPECT_EQ(device.loaded[2], "/game/Sounds/click.wav");
  EXPECT_EQ(device.loaded[17], "/game/Sounds/panel.wav");
  EXPECT_THAT(Heard(), ElementsAre(1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18));
}

TEST_F(SoundsTest, TurnSoundsThatAreHeardTakeTheTwoBuffersByTurns) {
  sounds.InitEffects("");
  sounds.setPlayer(&player);
  for (const char* name : {"turn", "TURN", "draw"}) sounds.PlayEffect(name);
  player.Mute_Cards_Opt = true;
  sounds.PlayEffect("turn");
  player.Mute_Cards_Opt = false;
  for (const char* name : {"Turn", "turn"}) sounds.PlayEffect(name);
  EXPECT_THAT(device.played, ElementsAre(1, 2, 5, 1, 2));
}

TEST_F(SoundsTest, EachMuteOptionSilencesItsOwnCategoryOnly) {
  sounds.InitEffects("");
  sounds.setPlayer(&player);
  player.Mute_Highlight_Opt = true;
  EXPECT_THAT(Heard(), ElementsAre(1, 3, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18));
  player.Mute_Highlight_Opt = false;
  player.Mute_Buttons_Opt = true;
  EXPECT_THAT(Heard(), ElementsAre(2, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 17));
  player.Mute_Buttons_Opt = false;
  player.Mute_Cards_Opt = true;
  EXPECT_THAT(Heard(), ElementsAre(3, 4, 6, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18));
  player.Mute_Cards_Opt = false;
  player.Mute_Events_Opt = true;
  EXPECT_THAT(Heard(), ElementsAre(1, 3, 4, 5, 7, 13, 15, 16, 18));

  player.Mute_Events_Opt = player.Mute_Highlight_Opt = player.Mute_Cards_Opt = player.Mute_Buttons_Opt = true;
  EXPECT_THAT(Heard(), IsEmpty());
  sounds.PlayEffectOnce("losematch");
  EXPECT_THAT(device.once, ElementsAre("/Sounds/losematch.wav")) << "the farewell is not muted";
  sounds.setPlayer(nullptr);
  EXPECT_EQ(Heard().size(), 17U);
}

/// The program asks by names of its own writing; they are held apart from the table's.
TEST_F(SoundsTest, EveryNameIsUnderstoodInAnyLetters) {
  sounds.InitEffects("");
  const char* names[] = {"TURN",    "Click",  "Hover",     "Draw",     "Bust", "PlayCard",
                         "LoseSet", "WinSet", "LoseMatch", "WinMatch", "Tie",  "CHECK",
                         "Propose", "Accept", "BUY",       "LEVELUP",  "PANEL"};
  std::vector<int> entries{1};
  for (int entry = 3; entry <= 18; ++entry) entries.push_back(entry);
  for (const char* name : names) sounds.PlayEffect(name);
  EXPECT_EQ(device.played, entries);
  sounds.setPlayer(&player);
  player.Mute_Highlight_Opt = player.Mute_Buttons_Opt = player.Mute_Cards_Opt = player.Mute_Events_Opt = true;
  for (const char* name : names) sounds.PlayEffect(name);
  EXPECT_EQ(device.played, entries) << "all are muted";
}

TEST_F(SoundsTest, EveryEffectHasItsWaveFile) {
  const char* assets = std::getenv("KV_ASSETS");
  ASSERT_NE(assets, nullptr);
  sounds.InitEffects(assets);
  for (const std::string& path : device.loaded) EXPECT_TRUE(FileExists(path)) << path;
}

TEST_F(SoundsTest, UnknownNamesPlayNothingAndABrokenWaveHarmsNoOther) {
  device.broken = "/Sounds/hover.wav";
  sounds.InitEffects("");
  for (const char* name : {"", "clic", "clicks", "turn.wav", "\xC3\x84"}) sounds.PlayEffect(name);
  EXPECT_THAT(device.played, IsEmpty());
  sounds.PlayEffect("hover");
  sounds.PlayEffect("Panel");
  EXPECT_THAT(device.played, ElementsAre(-100, 18)) << "the device is asked for buffer -1, which is silence";
}

// ---- the wave files that are shipped

struct Heights {
  int peak = 0;     // of 32767
  double mean = 0;  // root of the mean square, in dB of full scale
  int first = 0;    // the first and the last sample
  int last = 0;
};

Heights Measure(std::string_view samples) {
  Heights heights;
  double sum = 0;
  const std::size_t count = samples.size() / 2;
  for (std::size_t i = 0; i < count; ++i) {
    const auto low = static_cast<unsigned char>(samples[2 * i]);
    const auto high = static_cast<unsigned char>(samples[2 * i + 1]);
    const int sample = static_cast<std::int16_t>(low | high << 8);
    heights.peak = std::max(heights.peak, std::abs(sample));
    sum += static_cast<double>(sample) * sample;
    if (i == 0) heights.first = sample;
    heights.last = sample;
  }
  heights.mean = 10 * std::log10(sum / static_cast<double>(count)) - 20 * std::log10(32767.0);
  return heights;
}

// What stands in front of the samples of a plain wave file: PCM, 2 channels, 44100 frames of 4 bytes a
// second, 16 bits a sample.
constexpr std::size_t kFormatAt = 20;
constexpr std::size_t kSamplesAt = 44;
constexpr std::string_view kFormat("\1\0\2\0\x44\xAC\0\0\x10\xB1\2\0\4\0\x10\0data", 20);
constexpr double kBytesASecond = 176400;

TEST(SoundFiles, AreShortCleanAndEvenWithinEachCategory) {
  const char* assets = std::getenv("KV_ASSETS");
  ASSERT_NE(assets, nullptr);
  const std::vector<std::vector<const char*>> categories = {
      {"hover"},
      {"click", "check", "accept", "buy", "panel"},
      {"turn", "draw", "playcard"},
      {"bust", "loseset", "winset", "losematch", "winmatch", "tie", "propose", "levelup"}};
  double hover = 0;
  for (const auto& names : categories) {
    double quietest = 0;
    double loudest = -99;
    for (const char* name : names) {
      const FileBytes file = ReadWhole(std::string(assets) + "/Sounds/" + name + ".wav", 1U << 24U);
      ASSERT_TRUE(file.bytes) << name;
      ASSERT_GT(file.bytes->size(), kSamplesAt) << name;
      EXPECT_EQ(file.bytes->substr(kFormatAt, kFormat.size()), kFormat) << name;
      const std::string_view samples = std::string_view(*file.bytes).substr(kSamplesAt);
      const double seconds = static_cast<double>(samples.size()) / kBytesASecond;
      EXPECT_LE(seconds, std::string(name) == "losematch" ? 2.4 : 3.0) << name;
      const Heights heights = Measure(samples);
      EXPECT_LE(heights.peak, 23197) << name << " is above -3 dB";
      EXPECT_LE(std::abs(heights.first), 1) << name << " starts with a click";
      EXPECT_LE(std::abs(heights.last), 1) << name << " ends with a click";
      quietest = std::min(quietest, heights.mean);
      loudest = std::max(loudest, heights.mean);
    }
    EXPECT_LE(loudest - quietest, 3.0) << names.front();
    if (names.size() == 1) hover = loudest;
    EXPECT_GE(quietest, hover) << names.front();
  }
}

}  // namespace
}  // namespace kv::test
