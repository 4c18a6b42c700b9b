// What a wave file holds, read from its bytes with every length checked. Only plain PCM is a wave file here:
// what the game ships and what people who mod its sounds put in its place.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kv {

struct WaveFile {
  int channels = 0;          // 1 or 2
  int rate = 0;              // samples a second
  int bits = 0;              // 8 or 16 a sample
  std::string_view samples;  // whole frames, inside the bytes that were given
  [[nodiscard]] double seconds() const;
};

/// Nothing when the bytes are not a whole PCM wave file with at least one frame.
[[nodiscard]] std::optional<WaveFile> ReadWave(std::string_view bytes);

}  // namespace kv
