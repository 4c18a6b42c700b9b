// Wave files made of anything: what is accepted lies inside the file, in whole frames.
#include "platform/WaveFile.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto wave = kv::ReadWave(bytes);
  if (!wave) return 0;
  const bool inside = wave->samples.data() >= bytes.data() &&
                      wave->samples.data() + wave->samples.size() <= bytes.data() + bytes.size();
  const auto frame = static_cast<std::size_t>(wave->channels * wave->bits / 8);
  if (!inside || frame == 0 || wave->samples.empty() || wave->samples.size() % frame != 0) std::abort();
  return 0;
}
