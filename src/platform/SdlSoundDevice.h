// The sound device on SDL2_mixer: preloaded buffers, one mixer channel each. The library is loaded and the
// device opened only after the first window stands, and the device is closed again while nothing sounds. It
// never fails the caller: without library or device there is silence and one note on standard error.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Scheduler.h"
#include "platform/SoundDevice.h"

namespace kv {

class SdlSoundDevice : public SoundDevice {
 public:
  /// `scheduler` must outlive the device; its timers wake the device early and put it to sleep.
  explicit SdlSoundDevice(Scheduler& scheduler);
  ~SdlSoundDevice() override;
  SdlSoundDevice(const SdlSoundDevice&) = delete;
  SdlSoundDevice& operator=(const SdlSoundDevice&) = delete;

  int LoadBuffer(const std::string& wavePath) override;
  void PlayBuffer(int buffer) override;
  void PlayOnce(const std::string& wavePath) override;

  /// True while the system's audio device is held open (it is not while nothing sounds).
  [[nodiscard]] bool Awake() const { return awake_; }

 private:
  struct Mixer;   // the functions of the loaded library
  struct Buffer;  // one wave: its file's bytes until the mixer has taken them, then the mixer's samples

  bool Wake();
  void Sleep();
  bool OpenDevice();
  void Play(int channel, Buffer& buffer);

  Scheduler& scheduler_;
  std::unique_ptr<Mixer> mixer_;
  std::vector<std::unique_ptr<Buffer>> buffers_;
  std::unique_ptr<Buffer> once_;
  std::unique_ptr<Timer> wakeEarly_;
  std::unique_ptr<Timer> rest_;
  std::uint32_t lastFailure_ = 0;  // timeGetTime of the last failed opening
  bool failed_ = false;
  bool awake_ = false;
  bool noted_ = false;
};

}  // namespace kv
