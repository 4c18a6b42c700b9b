#include "SoundFile.h"

#include <SDL.h>
#include <SDL_mixer.h>

#include <cstdlib>
#include <memory>

namespace kv::sound {
namespace {

constexpr int kChannels = 2;
constexpr int kBlock = 1024;

/// The mixer, open on a device that is none: it converts what it loads to the device's form.
class Mixer {
 public:
  Mixer() {
    ::setenv("SDL_AUDIODRIVER", "dummy", 1);
    open_ = Mix_OpenAudioDevice(kRate, AUDIO_S16SYS, kChannels, kBlock, nullptr, 0) == 0;
  }
  Mixer(const Mixer&) = delete;
  Mixer& operator=(const Mixer&) = delete;
  ~Mixer() {
    if (open_) Mix_CloseAudio();
    Mix_Quit();
    SDL_Quit();
  }
  [[nodiscard]] bool open() const { return open_; }

 private:
  bool open_ = false;
};

}  // namespace

SoundFile ReadSound(const std::string& path) {
  const Mixer mixer;
  if (!mixer.open()) return {{}, Mix_GetError()};
  const std::unique_ptr<Mix_Chunk, decltype(&Mix_FreeChunk)> chunk(Mix_LoadWAV(path.c_str()), Mix_FreeChunk);
  if (chunk == nullptr) return {{}, std::string("it is no WAV, FLAC or OGG sound (") + Mix_GetError() + ")"};
  SoundFile file;
  const auto sample = [&](std::uint32_t at) {
    return static_cast<std::int16_t>(chunk->abuf[at] | chunk->abuf[at + 1] << 8) / 32767.0;
  };
  for (std::uint32_t at = 0; at + 4 <= chunk->alen; at += 4) {
    file.sound.left.push_back(sample(at));
    file.sound.right.push_back(sample(at + 2));
  }
  return file;
}

}  // namespace kv::sound
