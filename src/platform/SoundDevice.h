// A sound device that holds preloaded buffers and starts any of them at once. A missing or lost device is
// silence, never a fault. The real form is SdlSoundDevice; tests record what is played.
#pragma once

#include <string>

namespace kv {

class SoundDevice {
 public:
  virtual ~SoundDevice() = default;
  /// Loads a wave file into a new buffer and returns its number (from 0 upwards), or -1 when the file is
  /// missing or no wave file. One whose inside is damaged has a buffer that plays nothing. Both are noted on
  /// standard error.
  virtual int LoadBuffer(const std::string& wavePath) = 0;
  /// Rewinds the buffer and plays it once; a number that is not a buffer plays nothing.
  virtual void PlayBuffer(int buffer) = 0;
  /// Plays one wave file once, without keeping it; a missing file plays nothing.
  virtual void PlayOnce(const std::string& wavePath) = 0;
  /// Of all sounds, from 0 (silence) to 100 percent, which it is at first; also of those that sound now.
  virtual void setVolume(int percent) = 0;
};

}  // namespace kv
