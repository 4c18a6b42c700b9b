#include "platform/SdlSoundDevice.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <dlfcn.h>

#include <iostream>
#include <string_view>
#include <utility>

#include "platform/Files.h"

namespace kv {
namespace {

// The mixer pulls in some seventy libraries (8 MB resident, 8 ms with warm caches), which is why it is loaded
// by name once the first window stands instead of being linked.
constexpr const char* kMixerLibrary = "libSDL2_mixer-2.0.so.0";
constexpr const char* kAlsaLibrary = "libasound.so.2";

constexpr int kRate = 44100;
constexpr int kChannels = 2;
constexpr int kBlock = 512;  // frames handed over at a time: 12 ms of delay, 23 ms for closing
constexpr std::size_t kLargestWave = 16U << 20U;
constexpr std::size_t kWaveHead = 12;  // "RIFF", size, "WAVE"

constexpr int kWakeEarlyMs = 400;  // after the first buffer is loaded: the first window stands by then
constexpr int kRestMs = 5000;      // without a new sound, then the device is closed
constexpr std::uint32_t kRetryMs = 30000;  // after a failed opening

void Silent(const char*, int, const char*, int, const char*, ...) {}

// Without a sound card ALSA writes a dozen lines of its own to standard error; ours is enough.
void HushAlsa() {
  using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
  void* alsa = dlopen(kAlsaLibrary, RTLD_LAZY | RTLD_NOLOAD);
  if (alsa == nullptr) return;
  if (void* set = dlsym(alsa, "snd_lib_error_set_handler")) {
    reinterpret_cast<int (*)(Handler)>(set)(Silent);
  }
  dlclose(alsa);
}

void Note(const std::string& text) {
  std::cerr << "Kelm Vantri: " << text << '\n';
}

}  // namespace

/// The library stays loaded to the end of the program: its libraries keep threads and exit handlers.
struct SdlSoundDevice::Mixer {
  decltype(&SDL_SetHint) setHint = nullptr;
  decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;
  decltype(&SDL_RWFromConstMem) fromMemory = nullptr;
  decltype(&Mix_OpenAudioDevice) open = nullptr;
  decltype(&Mix_CloseAudio) close = nullptr;
  decltype(&Mix_AllocateChannels) allocateChannels = nullptr;
  decltype(&Mix_LoadWAV_RW) loadWave = nullptr;
  decltype(&Mix_FreeChunk) freeChunk = nullptr;
  decltype(&Mix_PlayChannelTimed) play = nullptr;
  decltype(&Mix_HaltChannel) halt = nullptr;
  decltype(&Mix_Playing) playing = nullptr;

  [[nodiscard]] static std::unique_ptr<Mixer> Load() {
    void* library = dlopen(kMixerLibrary, RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) return {};
    auto mixer = std::make_unique<Mixer>();
    const auto find = [library](auto& function, const char* name) {
      function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
      return function != nullptr;
    };
    const bool whole =
        find(mixer->setHint, "SDL_SetHint") && find(mixer->quitSubSystem, "SDL_QuitSubSystem") &&
        find(mixer->fromMemory, "SDL_RWFromConstMem") && find(mixer->open, "Mix_OpenAudioDevice") &&
        find(mixer->close, "Mix_CloseAudio") && find(mixer->allocateChannels, "Mix_AllocateChannels") &&
        find(mixer->loadWave, "Mix_LoadWAV_RW") && find(mixer->freeChunk, "Mix_FreeChunk") &&
        find(mixer->play, "Mix_PlayChannelTimed") && find(mixer->halt, "Mix_HaltChannel") &&
        find(mixer->playing, "Mix_Playing");
    if (!whole) return {};
    HushAlsa();
    mixer->setHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Kelm Vantri");
    // The signals that end the program are the program's: nobody here would read what SDL made of them.
    mixer->setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    return mixer;
  }
};

struct SdlSoundDevice::Buffer {
  std::string path;
  std::string bytes;
  std::unique_ptr<Mix_Chunk, decltype(&Mix_FreeChunk)> chunk{nullptr, nullptr};

  /// The wave's bytes in a new buffer, or null with the reason in `why`.
  [[nodiscard]] static std::unique_ptr<Buffer> Read(const std::string& wavePath, std::string& why) {
    FileBytes file = ReadWhole(ResolvePath(wavePath), kLargestWave);
    if (!file.bytes) {
      why = file.error;
      return {};
    }
    // The mixer reads the rest. It would take other kinds of file too, and modules to play them with.
    const std::string_view head = std::string_view(*file.bytes).substr(0, kWaveHead);
    if (!head.starts_with("RIFF") || !head.ends_with("WAVE")) {
      why = "it is not a wave file";
      return {};
    }
    auto buffer = std::make_unique<Buffer>();
    buffer->path = wavePath;
    buffer->bytes = std::move(*file.bytes);
    return buffer;
  }

  /// Hands the bytes to the mixer, which keeps them in the device's own format. The device must be open.
  bool Prepare(const Mixer& mixer) {
    if (chunk == nullptr && !bytes.empty()) {
      SDL_RWops* stream = mixer.fromMemory(bytes.data(), static_cast<int>(bytes.size()));
      chunk = {mixer.loadWave(stream, 1), mixer.freeChunk};
      std::string().swap(bytes);
      if (chunk == nullptr) Note("no sound from " + path + ": it is damaged");
    }
    return chunk != nullptr;
  }
};

SdlSoundDevice::SdlSoundDevice(Scheduler& scheduler)
    : scheduler_(scheduler),
      wakeEarly_(scheduler.NewTimer(kWakeEarlyMs,
                                    [this] {
                                      wakeEarly_->setEnabled(false);
                                      Wake();
                                    })),
      rest_(scheduler.NewTimer(kRestMs, [this] {
        if (mixer_->playing(-1) == 0) Sleep();
      })) {}

SdlSoundDevice::~SdlSoundDevice() {
  Sleep();
}

int SdlSoundDevice::LoadBuffer(const std::string& wavePath) {
  std::string why;
  std::unique_ptr<Buffer> buffer = Buffer::Read(wavePath, why);
  if (buffer == nullptr) {
    Note("no sound from " + wavePath + ": " + why);
    return -1;
  }
  buffers_.push_back(std::move(buffer));
  if (awake_) Sleep();  // the mixer learns of the new channel when it is opened again
  wakeEarly_->setEnabled(true);
  return static_cast<int>(buffers_.size()) - 1;
}

void SdlSoundDevice::PlayBuffer(int buffer) {
  if (buffer < 0 || buffer >= static_cast<int>(buffers_.size()) || !Wake()) return;
  Play(buffer, *buffers_[static_cast<std::size_t>(buffer)]);
}

void SdlSoundDevice::PlayOnce(const std::string& wavePath) {
  std::string why;
  std::unique_ptr<Buffer> buffer = Buffer::Read(wavePath, why);
  if (buffer == nullptr || !Wake()) return;
  const int channel = static_cast<int>(buffers_.size());
  mixer_->halt(channel);  // before its samples go with the old buffer
  once_ = std::move(buffer);
  Play(channel, *once_);
}

void SdlSoundDevice::Play(int channel, Buffer& buffer) {
  if (!buffer.Prepare(*mixer_)) return;
  mixer_->play(channel, buffer.chunk.get(), 0, -1);
  rest_->setEnabled(true);
}

bool SdlSoundDevice::Wake() {
  if (awake_) return true;
  if (failed_ && scheduler_.timeGetTime() - lastFailure_ < kRetryMs) return false;
  awake_ = OpenDevice();
  failed_ = !awake_;
  if (awake_) {
    wakeEarly_->setEnabled(false);
    rest_->setEnabled(true);
    mixer_->allocateChannels(static_cast<int>(buffers_.size()) + 1);
    for (const auto& buffer : buffers_) buffer->Prepare(*mixer_);
  } else {
    lastFailure_ = scheduler_.timeGetTime();
    if (!std::exchange(noted_, true)) Note("no sound device, so the game is silent");
  }
  return awake_;
}

bool SdlSoundDevice::OpenDevice() {
  if (mixer_ == nullptr) mixer_ = Mixer::Load();
  if (mixer_ == nullptr) return false;
  // No change of format is allowed: the buffers' samples outlive the open device.
  if (mixer_->open(kRate, AUDIO_S16SYS, kChannels, kBlock, nullptr, 0) == 0) return true;
  mixer_->quitSubSystem(SDL_INIT_AUDIO);
  return false;
}

void SdlSoundDevice::Sleep() {
  if (!std::exchange(awake_, false)) return;
  rest_->setEnabled(false);
  mixer_->halt(-1);
  mixer_->close();
  // Opening started SDL's audio part, whose search for new devices would go on waking the processor.
  mixer_->quitSubSystem(SDL_INIT_AUDIO);
}

}  // namespace kv
