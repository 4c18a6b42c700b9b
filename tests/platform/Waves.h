// Small wave files for the sound tests, built field by field so that each field can be wrong.
#pragma once

#include <bit>
#include <cstdint>
#include <string>

namespace kv {

inline constexpr std::uint32_t kWholeNumbers = 1;  // formats
inline constexpr std::uint32_t kFloats = 3;

/// A square wave of a quarter of full level.
struct WaveParts {
  std::uint32_t format = kWholeNumbers;
  std::uint32_t channels = 1;
  std::uint32_t rate = 44100;
  std::uint32_t bits = 16;
  std::uint32_t frameSize = 2;
  std::string before = {};  // whole chunks in front of the samples
  int frames = 4410;
  int level = 8192;

  [[nodiscard]] std::string Bytes() const {
    std::string samples;
    for (int i = 0; i < frames; ++i) samples += Sample(i / 50 % 2 == 0 ? level : -level);
    const std::string format16 = Number(format, 2) + Number(channels, 2) + Number(rate, 4) +
                                 Number(rate * frameSize, 4) + Number(frameSize, 2) + Number(bits, 2);
    const std::string body = "WAVEfmt " + Number(16, 4) + format16 + before + "data" +
                             Number(static_cast<std::uint32_t>(samples.size()), 4) + samples;
    return "RIFF" + Number(static_cast<std::uint32_t>(body.size()), 4) + body;
  }

  [[nodiscard]] std::string Sample(int value) const {
    if (format == kFloats) return Number(std::bit_cast<std::uint32_t>(static_cast<float>(value) / 32768), 4);
    if (bits == 8) return Number(static_cast<std::uint32_t>(value / 256 + 128), 1);
    if (bits == 24 || bits == 32) {
      return Number(static_cast<std::uint32_t>(value) << (bits - 16), static_cast<int>(bits) / 8);
    }
    return Number(static_cast<std::uint32_t>(value), 2);
  }

  [[nodiscard]] static std::string Number(std::uint32_t value, int size) {
    std::string bytes;
    for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    return bytes;
  }
};

}  // namespace kv
