#include "platform/WaveFile.h"

#include <algorithm>

namespace kv {
namespace {

constexpr std::size_t kHeadSize = 12;  // "RIFF", size, "WAVE"
constexpr std::size_t kChunkHead = 8;  // name, size
constexpr std::size_t kFormatSize = 16;
constexpr std::uint32_t kPcm = 1;
constexpr std::uint32_t kLowestRate = 4000;
constexpr std::uint32_t kHighestRate = 192000;

std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t value = 0;
  for (std::size_t i = size; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
  return value;
}

bool TakeFormat(std::string_view chunk, WaveFile& wave) {
  if (chunk.size() < kFormatSize || Number(chunk, 0, 2) != kPcm) return false;
  const std::uint32_t channels = Number(chunk, 2, 2);
  const std::uint32_t rate = Number(chunk, 4, 4);
  const std::uint32_t bits = Number(chunk, 14, 2);
  if (channels < 1 || channels > 2 || rate < kLowestRate || rate > kHighestRate) return false;
  if (bits != 8 && bits != 16) return false;
  if (Number(chunk, 12, 2) != channels * bits / 8) return false;
  wave.channels = static_cast<int>(channels);
  wave.rate = static_cast<int>(rate);
  wave.bits = static_cast<int>(bits);
  return true;
}

}  // namespace

double WaveFile::seconds() const {
  return static_cast<double>(samples.size()) / (static_cast<double>(rate) * channels * bits / 8);
}

std::optional<WaveFile> ReadWave(std::string_view bytes) {
  if (bytes.size() < kHeadSize || bytes.substr(0, 4) != "RIFF" || bytes.substr(8, 4) != "WAVE") return {};
  WaveFile wave;
  for (std::size_t at = kHeadSize; bytes.size() - at >= kChunkHead;) {
    const std::string_view name = bytes.substr(at, 4);
    const std::size_t size = Number(bytes, at + 4, 4);
    at += kChunkHead;
    if (size > bytes.size() - at) return {};
    const std::string_view chunk = bytes.substr(at, size);
    if (name == "fmt " && !TakeFormat(chunk, wave)) return {};
    if (name == "data") {
      if (wave.rate == 0) return {};
      const std::size_t frame = static_cast<std::size_t>(wave.channels * wave.bits / 8);
      wave.samples = chunk.substr(0, chunk.size() - chunk.size() % frame);
      if (wave.samples.empty()) return {};
      return wave;
    }
    at += std::min(size + size % 2, bytes.size() - at);
  }
  return {};
}

}  // namespace kv
