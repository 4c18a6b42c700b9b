#include "platform/SoundMix.h"

#include <algorithm>
#include <limits>

namespace kv {
namespace {

constexpr int kWhole = 100;  // percent

std::int16_t Saturated(int sample) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<int>(sample, Limits::min(), Limits::max()));
}

}  // namespace

void SoundMix::Start(int voice, std::span<const std::int16_t> samples) {
  const std::scoped_lock lock(mutex_);
  const auto found = std::ranges::find(voices_, voice, &Voice::number);
  if (found == voices_.end()) {
    voices_.push_back({voice, samples});
  } else {
    found->rest = samples;
  }
}

void SoundMix::Stop(int voice) {
  const std::scoped_lock lock(mutex_);
  std::erase_if(voices_, [voice](const Voice& other) { return other.number == voice; });
}

void SoundMix::StopAll() {
  const std::scoped_lock lock(mutex_);
  voices_.clear();
}

bool SoundMix::Sounding() const {
  const std::scoped_lock lock(mutex_);
  return !voices_.empty();
}

void SoundMix::setVolume(int percent) {
  const std::scoped_lock lock(mutex_);
  volume_ = std::clamp(percent, 0, kWhole);
}

void SoundMix::Take(std::span<std::int16_t> out) {
  const std::scoped_lock lock(mutex_);
  // Sample by sample over all voices: adding voice by voice would cut what a later one takes back.
  for (std::size_t at = 0; at < out.size(); ++at) {
    int sum = 0;
    for (const Voice& voice : voices_) sum += at < voice.rest.size() ? voice.rest[at] : 0;
    out[at] = Saturated(sum * volume_ / kWhole);
  }
  for (Voice& voice : voices_) voice.rest = voice.rest.subspan(std::min(out.size(), voice.rest.size()));
  std::erase_if(voices_, [](const Voice& voice) { return voice.rest.empty(); });
}

}  // namespace kv
