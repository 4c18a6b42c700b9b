// The real sound device: preloaded buffers, one voice each. Library and device are opened only after the
// first window stands, and the device is given up while nothing sounds. It never fails the caller: without
// library or device there is silence and one note on standard error.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/Scheduler.h"
#include "platform/SoundDevice.h"
#include "platform/SoundMix.h"

namespace kv {

class SdlLibrary;

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
  void setVolume(int percent) override;

  /// True while the system's audio device is held open (it is not while nothing sounds).
  [[nodiscard]] bool Awake() const { return awake_; }

 private:
  /// One wave: its file's bytes until the library has made samples of them.
  struct Buffer {
    std::string path;
    std::string bytes;
    std::vector<std::int16_t> samples;
  };

  [[nodiscard]] static std::unique_ptr<Buffer> Read(const std::string& wavePath, std::string& why);
  bool Wake();
  void Sleep();
  void Prepare(Buffer& buffer) const;
  void Play(int voice, Buffer& buffer);

  Scheduler& scheduler_;
  std::vector<std::unique_ptr<Buffer>> buffers_;
  std::unique_ptr<Buffer> once_;
  SoundMix mix_;
  std::unique_ptr<SdlLibrary> library_;  // goes, with its thread, before what it takes from
  std::unique_ptr<Timer> wakeEarly_;
  std::unique_ptr<Timer> rest_;
  std::uint32_t lastFailure_ = 0;  // timeGetTime of the last failed opening
  bool failed_ = false;
  bool awake_ = false;
  bool noted_ = false;
};

}  // namespace kv
