// Sounds that are heard together: what sounds is added up, at one volume, and cut where it would run over. It
// is filled from the program's thread and emptied from the sound device's, and must never make that one wait.
#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace kv {

class SoundMix {
 public:
  /// Sounds from now on, from its beginning, also if this voice sounds already. Two channels, left first. The
  /// samples are not copied: they must stay until the voice has ended or was stopped.
  void Start(int voice, std::span<const std::int16_t> samples);
  void Stop(int voice);
  void StopAll();
  [[nodiscard]] bool Sounding() const;

  /// 0 (silence) to 100 percent of what the samples say; other values are cut to these.
  void setVolume(int percent);

  /// Fills `out` with what comes next; where nothing sounds it is silence.
  void Take(std::span<std::int16_t> out);

 private:
  struct Voice {
    int number = 0;
    std::span<const std::int16_t> rest;
  };

  mutable std::mutex mutex_;   // held for some microseconds only
  std::vector<Voice> voices_;  // that sound now
  int volume_ = 100;
};

}  // namespace kv
