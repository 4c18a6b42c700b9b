#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>

#include "platform/SdlSoundDevice.h"
#include "platform/Waves.h"
#include "support/HandScheduler.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

/// Polls, for at most some seconds: the device takes from a thread of its own.
template <class Condition>
bool Soon(Condition condition) {
  for (int i = 0; i < 5000; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

class SdlSoundDeviceTest : public testing::Test {
 protected:
  void UseDriver(const char* name) { ::setenv("SDL_AUDIODRIVER", name, 1); }
  void TearDown() override { UseDriver("dummy"); }

  [[nodiscard]] std::string PutWave(const char* name) const {
    folder.Put(name, WaveParts{}.Bytes());
    return folder / name;
  }
  /// Uses the driver that writes what would be heard into a file, faster than it would be heard.
  void UseDiskDriver() {
    UseDriver("disk");
    ::setenv("SDL_DISKAUDIOFILE", (folder / "heard.raw").c_str(), 1);
    ::setenv("SDL_DISKAUDIODELAY", "1", 1);
  }
  [[nodiscard]] bool Heard() const {
    const std::string samples = folder.Get("heard.raw");
    return samples.find_first_not_of('\0') != std::string::npos;
  }
  /// What is heard of a buffer that is played now, from the first to the last sample that is not silent.
  [[nodiscard]] std::vector<std::int16_t> HeardOf(SdlSoundDevice& device, int buffer) {
    folder.Put("heard.raw", "");
    device.PlayBuffer(buffer);
    EXPECT_TRUE(Soon([&] {
      scheduler.Advance(5000);
      return !device.Awake();
    }));
    const std::string bytes = folder.Get("heard.raw");
    std::vector<std::int16_t> samples(bytes.size() / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
    const auto sounds = [](std::int16_t sample) { return sample != 0; };
    samples.erase(samples.begin(), std::ranges::find_if(samples, sounds));
    while (!samples.empty() && samples.back() == 0) samples.pop_back();
    return samples;
  }

  const TempFolder folder;
  HandScheduler scheduler;
};

TEST_F(SdlSoundDeviceTest, TheSignalsThatEndTheProgramStayItsOwn) {
  UseDriver("dummy");
  SdlSoundDevice device(scheduler);
  device.PlayBuffer(device.LoadBuffer(PutWave("a.wav")));
  ASSERT_TRUE(device.Awake());
  for (const int signal : {SIGTERM, SIGINT}) {
    struct sigaction now {};
    sigaction(signal, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL) << signal;
  }
}

TEST_F(SdlSoundDeviceTest, APlayedBufferComesOutAndTheDeviceThenSleeps) {
  UseDiskDriver();
  SdlSoundDevice device(scheduler);
  const int buffer = device.LoadBuffer(PutWave("a.wav"));
  ASSERT_EQ(buffer, 0);
  EXPECT_FALSE(device.Awake()) << "opened before the first window stands";

  // The second round proves that the samples outlive the closed device.
  for (int round = 0; round < 2; ++round) {
    device.PlayBuffer(buffer);
    EXPECT_TRUE(Soon([this] { return Heard(); })) << round;
    EXPECT_TRUE(Soon([&] {
      scheduler.Advance(5000);
      return !device.Awake();
    }));
    EXPECT_EQ(scheduler.RunningTimers(), 0) << "something still ticks while nothing sounds";
    folder.Put("heard.raw", "");
  }

  device.PlayOnce(folder / "nothing.wav");
  EXPECT_FALSE(device.Awake());
  device.PlayOnce(PutWave("once.wav"));
  EXPECT_TRUE(Soon([this] { return Heard(); }));
}

TEST_F(SdlSoundDeviceTest, ASoundIsHeardWholeAndAsLoudAsTheVolumeSays) {
  UseDiskDriver();
  SdlSoundDevice device(scheduler);
  const int buffer = device.LoadBuffer(PutWave("a.wav"));
  for (const int volume : {100, 50, 10}) {
    device.setVolume(volume);
    const std::vector<std::int16_t> heard = HeardOf(device, buffer);
    ASSERT_EQ(heard.size(), 2U * 4410) << volume;
    EXPECT_EQ(*std::ranges::max_element(heard), 8192 * volume / 100);
  }
  device.setVolume(0);
  EXPECT_TRUE(HeardOf(device, buffer).empty());
}

TEST_F(SdlSoundDeviceTest, WakesEarlySoThatTheFirstSoundIsNotLate) {
  UseDriver("dummy");
  SdlSoundDevice device(scheduler);
  EXPECT_EQ(scheduler.RunningTimers(), 0);
  EXPECT_EQ(device.LoadBuffer(PutWave("a.wav")), 0);
  EXPECT_EQ(device.LoadBuffer(PutWave("b.wav")), 1);
  scheduler.Advance(1000);
  EXPECT_TRUE(device.Awake());
  EXPECT_EQ(device.LoadBuffer(PutWave("late.wav")), 2);
  device.PlayBuffer(2);
  EXPECT_TRUE(device.Awake());
}

TEST_F(SdlSoundDeviceTest, WithoutADeviceThereIsSilenceAndOneNote) {
  UseDriver("no-such-driver");
  SdlSoundDevice device(scheduler);
  const int buffer = device.LoadBuffer(PutWave("a.wav"));
  testing::internal::CaptureStderr();
  for (int i = 0; i < 5; ++i) {
    device.PlayBuffer(buffer);
    device.PlayOnce(folder / "a.wav");
    scheduler.Advance(20000);
  }
  const std::string noted = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::ranges::count(noted, '\n'), 1) << noted;
  EXPECT_FALSE(device.Awake());

  // Headphones plugged in later are found.
  UseDriver("dummy");
  scheduler.Advance(60000);
  device.PlayBuffer(buffer);
  EXPECT_TRUE(device.Awake());
}

TEST_F(SdlSoundDeviceTest, AMissingOrOtherFileIsNoBufferAndIsNoted) {
  UseDriver("dummy");
  SdlSoundDevice device(scheduler);
  folder.Put("empty.wav", "");
  folder.Put("text.wav", "this is not a sound");
  folder.Put("cut.wav", WaveParts{}.Bytes().substr(0, 11));
  for (const char* name : {"missing.wav", "empty.wav", "text.wav", "cut.wav"}) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(device.LoadBuffer(folder / name), -1) << name;
    EXPECT_NE(testing::internal::GetCapturedStderr().find(name), std::string::npos);
    device.PlayOnce(folder / name);
  }
  device.PlayBuffer(-1);
  device.PlayBuffer(0);
  EXPECT_FALSE(device.Awake());
}

TEST_F(SdlSoundDeviceTest, ADamagedWaveIsNotedAndHarmsNoOther) {
  UseDiskDriver();
  SdlSoundDevice device(scheduler);
  const std::string whole = WaveParts{}.Bytes();
  folder.Put("headless.wav", whole.substr(0, 30));
  folder.Put("unknown.wav", WaveParts{.format = 77}.Bytes());
  folder.Put("rateless.wav", WaveParts{.rate = 0}.Bytes());
  int buffer = 0;
  for (const char* name : {"headless.wav", "unknown.wav", "rateless.wav"}) {
    EXPECT_EQ(device.LoadBuffer(folder / name), buffer) << name;
    testing::internal::CaptureStderr();
    device.PlayBuffer(buffer++);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(name), std::string::npos);
  }
  // Whatever a byte becomes, it is played or it is silent.
  for (std::size_t at = 0; at < 44; ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0xFF);
    folder.Put("damaged.wav", damaged);
    testing::internal::CaptureStderr();
    device.PlayOnce(folder / "damaged.wav");
    (void)testing::internal::GetCapturedStderr();
  }
  const int good = device.LoadBuffer(PutWave("good.wav"));
  folder.Put("heard.raw", "");
  device.PlayBuffer(good);
  EXPECT_TRUE(Soon([this] { return Heard(); }));
}

}  // namespace
}  // namespace kv::test
