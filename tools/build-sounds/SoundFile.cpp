#include "SoundFile.h"

#include <SDL.h>
#include <sndfile.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace kv::sound {
namespace {

constexpr int kChannels = 2;
constexpr sf_count_t kMostSamples = 60LL * 96000 * kChannels;  // a minute at a fine rate

/// Brought to the game's rate and to two channels; empty when that cannot be done.
std::vector<float> Converted(std::vector<float> samples, const SF_INFO& form) {
  SDL_AudioCVT steps{};
  if (form.channels > 8 || samples.empty()) return {};
  if (SDL_BuildAudioCVT(&steps, AUDIO_F32SYS, static_cast<Uint8>(form.channels), form.samplerate,
                        AUDIO_F32SYS, kChannels, kRate) < 0) {
    return {};
  }
  const std::size_t size = samples.size();
  samples.resize(size * static_cast<std::size_t>(std::max(steps.len_mult, 1)));
  steps.len = steps.len_cvt = static_cast<int>(size * sizeof(float));
  steps.buf = reinterpret_cast<Uint8*>(samples.data());
  if (steps.needed != 0 && SDL_ConvertAudio(&steps) != 0) return {};
  samples.resize(static_cast<std::size_t>(steps.len_cvt) / sizeof(float));
  return samples;
}

}  // namespace

SoundFile ReadSound(const std::string& path) {
  SF_INFO form{};
  const std::unique_ptr<SNDFILE, decltype(&sf_close)> file(sf_open(path.c_str(), SFM_READ, &form), sf_close);
  if (file == nullptr) {
    return {{}, std::string("it is no WAV, FLAC or OGG sound (") + sf_strerror(nullptr) + ")"};
  }
  const sf_count_t count = form.frames * form.channels;
  if (form.frames > kMostSamples || count > kMostSamples) return {{}, "it is longer than a minute"};
  std::vector<float> samples(static_cast<std::size_t>(std::max<sf_count_t>(count, 0)));
  samples.resize(
      static_cast<std::size_t>(std::max<sf_count_t>(sf_read_float(file.get(), samples.data(), count), 0)));
  SoundFile read;
  const std::vector<float> both = Converted(std::move(samples), form);
  for (std::size_t at = 0; at + 1 < both.size(); at += 2) {
    read.sound.left.push_back(both[at]);
    read.sound.right.push_back(both[at + 1]);
  }
  if (both.empty()) read.fault = "it holds no sound";
  return read;
}

}  // namespace kv::sound
