#include <gtest/gtest.h>

#include "platform/WaveFile.h"
#include "platform/Waves.h"

namespace kv {
namespace {

TEST(WaveFile, ReadsTheSamplesBehindOtherChunks) {
  WaveParts parts;
  parts.before = "LIST" + WaveParts::Number(3, 4) + "abc" + std::string(1, '\0');  // odd, so padded
  const std::string bytes = parts.Bytes();
  const auto wave = ReadWave(bytes);
  ASSERT_TRUE(wave);
  EXPECT_EQ(wave->samples.size(), 8820U);
  EXPECT_DOUBLE_EQ(wave->seconds(), 0.1);
  EXPECT_EQ(wave->samples.data() + wave->samples.size(), bytes.data() + bytes.size());
}

TEST(WaveFile, RefusesWhatIsNotPlainPcm) {
  EXPECT_TRUE(ReadWave(WaveParts{}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.format = 2}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.channels = 0}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.channels = 3}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.rate = 0}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.bits = 24}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.frameSize = 3}.Bytes()));
  EXPECT_FALSE(ReadWave(WaveParts{.frames = 0}.Bytes()));
}

TEST(WaveFile, NeverReadsPastACutOrDamagedFile) {
  const std::string whole = WaveParts{.frames = 20}.Bytes();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string cut = whole.substr(0, size);
    EXPECT_FALSE(ReadWave(cut)) << size;
  }
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const int mask : {0x01, 0x80, 0xFF}) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ mask);
      const auto wave = ReadWave(damaged);
      EXPECT_LE(wave ? wave->samples.size() : 0, damaged.size() - 44) << at;
    }
  }
}

}  // namespace
}  // namespace kv
