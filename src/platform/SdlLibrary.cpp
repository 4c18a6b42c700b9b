#include "platform/SdlLibrary.h"

#include <SDL.h>
#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace kv {
namespace {

// With it come some fifty other libraries, which is why it is loaded by name once the first window stands.
constexpr const char* kLibrary = "libSDL2-2.0.so.0";
constexpr const char* kAlsaLibrary = "libasound.so.2";

constexpr int kRate = 44100;
constexpr int kChannels = 2;
constexpr int kBlock = 512;  // frames handed over at a time: 12 ms of delay, 23 ms for closing

// A file says itself what its few bytes are to become: a rate of 1 Hz would make hours of them.
constexpr int kLeastRate = 1000;
constexpr int kMostRate = 384000;
constexpr double kLongestSeconds = 60;
constexpr std::size_t kMostRoom = 64U << 20U;  // bytes, while it is converted

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

/// What the device's own thread calls.
void TakeBlock(void* mix, Uint8* out, int bytes) {
  static_cast<SoundMix*>(mix)->Take(
      {reinterpret_cast<std::int16_t*>(out), static_cast<std::size_t>(bytes) / sizeof(std::int16_t)});
}

/// The wave file with no chunk longer than the file, which the library would set memory aside for unread: a
/// recording that was written to a pipe claims gigabytes. Empty when it is no wave file.
std::string WithBoundedChunks(std::string_view wave) {
  constexpr std::size_t kHeader = 12;      // "RIFF", length, "WAVE"
  constexpr std::size_t kChunkHeader = 8;  // name, length (little-endian)
  if (wave.size() < kHeader || wave.substr(0, 4) != "RIFF" || wave.substr(8, 4) != "WAVE") return {};
  std::string bounded(wave);
  for (std::size_t at = kHeader; at + kChunkHeader <= bounded.size();) {
    std::uint32_t length = 0;
    std::memcpy(&length, &bounded[at + 4], sizeof length);
    length = SDL_SwapLE32(length);
    const std::size_t left = bounded.size() - at - kChunkHeader;
    if (length > left) {
      length = SDL_SwapLE32(static_cast<std::uint32_t>(left));
      std::memcpy(&bounded[at + 4], &length, sizeof length);
      break;
    }
    at += kChunkHeader + length + length % 2;
  }
  return bounded;
}

double Seconds(const SDL_AudioSpec& form, Uint32 bytes) {
  return static_cast<double>(bytes) / (SDL_AUDIO_BITSIZE(form.format) / 8) / form.channels / form.freq;
}

}  // namespace

struct SdlLibrary::Functions {
  decltype(&SDL_SetHint) setHint = nullptr;
  decltype(&SDL_InitSubSystem) initSubSystem = nullptr;
  decltype(&SDL_QuitSubSystem) quitSubSystem = nullptr;
  decltype(&SDL_RWFromConstMem) fromMemory = nullptr;
  decltype(&SDL_LoadWAV_RW) loadWave = nullptr;
  decltype(&SDL_FreeWAV) freeWave = nullptr;
  decltype(&SDL_BuildAudioCVT) plan = nullptr;
  decltype(&SDL_ConvertAudio) convert = nullptr;
  decltype(&SDL_OpenAudioDevice) open = nullptr;
  decltype(&SDL_CloseAudioDevice) close = nullptr;
  decltype(&SDL_PauseAudioDevice) pause = nullptr;
  decltype(&SDL_GetAudioDeviceStatus) status = nullptr;

  /// False when one of them is missing.
  bool FindAll(void* library) {
    const auto find = [library](auto& function, const char* name) {
      function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(library, name));
      return function != nullptr;
    };
    return find(setHint, "SDL_SetHint") && find(initSubSystem, "SDL_InitSubSystem") &&
           find(quitSubSystem, "SDL_QuitSubSystem") && find(fromMemory, "SDL_RWFromConstMem") &&
           find(loadWave, "SDL_LoadWAV_RW") && find(freeWave, "SDL_FreeWAV") &&
           find(plan, "SDL_BuildAudioCVT") && find(convert, "SDL_ConvertAudio") &&
           find(open, "SDL_OpenAudioDevice") && find(close, "SDL_CloseAudioDevice") &&
           find(pause, "SDL_PauseAudioDevice") && find(status, "SDL_GetAudioDeviceStatus");
  }

  /// The samples in the device's form; empty when they cannot be brought into it. A stream would do the same
  /// piece by piece, but would keep the last thousand frames of a rate other than the device's.
  [[nodiscard]] std::vector<std::int16_t> Converted(const SDL_AudioSpec& form, const Uint8* bytes,
                                                    Uint32 size) const {
    SDL_AudioCVT steps{};
    if (plan(&steps, form.format, form.channels, form.freq, AUDIO_S16SYS, kChannels, kRate) < 0) return {};
    const std::size_t room =
        static_cast<std::size_t>(size) * static_cast<std::size_t>(std::max(steps.len_mult, 1));
    if (size == 0 || room > kMostRoom) return {};
    std::vector<std::int16_t> samples((room + 1) / sizeof(std::int16_t));
    std::memcpy(samples.data(), bytes, size);
    steps.len = steps.len_cvt = static_cast<int>(size);
    steps.buf = reinterpret_cast<Uint8*>(samples.data());
    if (steps.needed != 0 && convert(&steps) != 0) return {};
    samples.resize(static_cast<std::size_t>(steps.len_cvt) / sizeof(std::int16_t));
    samples.shrink_to_fit();
    return samples;
  }
};

SdlLibrary::SdlLibrary(std::unique_ptr<Functions> functions) : sdl_(std::move(functions)) {}

SdlLibrary::~SdlLibrary() {
  Close();
}

std::unique_ptr<SdlLibrary> SdlLibrary::Load() {
  void* library = dlopen(kLibrary, RTLD_LAZY | RTLD_LOCAL);
  auto functions = std::make_unique<Functions>();
  if (library == nullptr || !functions->FindAll(library)) return {};
  HushAlsa();
  functions->setHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Kelm Vantri");
  // The signals that end the program are the program's: nobody here would read what the library made of them.
  functions->setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  return std::unique_ptr<SdlLibrary>(new SdlLibrary(std::move(functions)));
}

std::vector<std::int16_t> SdlLibrary::Decode(std::string_view wave, std::string& why) const {
  SDL_AudioSpec form{};
  Uint8* bytes = nullptr;
  Uint32 size = 0;
  why = "it is damaged";
  const std::string bounded = WithBoundedChunks(wave);
  SDL_RWops* file = sdl_->fromMemory(bounded.data(), static_cast<int>(bounded.size()));
  if (file == nullptr || sdl_->loadWave(file, 1, &form, &bytes, &size) == nullptr) return {};
  const std::unique_ptr<Uint8, decltype(sdl_->freeWave)> held(bytes, sdl_->freeWave);
  if (form.freq < kLeastRate || form.freq > kMostRate || form.channels == 0) return {};
  if (Seconds(form, size) > kLongestSeconds) {
    why = "it is longer than a minute";
    return {};
  }
  std::vector<std::int16_t> samples = sdl_->Converted(form, bytes, size);
  if (!samples.empty()) why.clear();
  return samples;
}

bool SdlLibrary::Open(SoundMix& mix) {
  Close();
  if (sdl_->initSubSystem(SDL_INIT_AUDIO) != 0) return false;
  SDL_AudioSpec form{};
  form.freq = kRate;
  form.format = AUDIO_S16SYS;
  form.channels = kChannels;
  form.samples = kBlock;
  form.callback = TakeBlock;
  form.userdata = &mix;
  // No change of form is allowed: the samples are decoded once and outlive the device.
  device_ = sdl_->open(nullptr, 0, &form, nullptr, 0);
  if (device_ == 0) {
    sdl_->quitSubSystem(SDL_INIT_AUDIO);
  } else {
    sdl_->pause(device_, 0);
  }
  return device_ != 0;
}

void SdlLibrary::Close() {
  if (device_ == 0) return;
  sdl_->close(std::exchange(device_, 0));
  // Opening started the library's audio part, whose search for new devices would go on waking the processor.
  sdl_->quitSubSystem(SDL_INIT_AUDIO);
}

bool SdlLibrary::Lost() const {
  return device_ != 0 && sdl_->status(device_) == SDL_AUDIO_STOPPED;
}

}  // namespace kv
