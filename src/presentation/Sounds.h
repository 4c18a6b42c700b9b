// The sound effects by name, filtered by the player's four mute options. Every effect lies ready in a buffer
// of the device, so a request only starts it. A request that cannot be served plays nothing; never an error.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/SoundDevice.h"

namespace kv {

class clsPlayer;

inline constexpr int kSoundCount = 18;

/// Entry 1 is at index 0. "turn" has two buffers, so that a second turn sound does not cut off the first.
inline constexpr std::array<std::string_view, kSoundCount> kSoundNames = {
    "turn",      "turn",     "click", "hover", "draw",    "bust",   "playcard", "loseset", "winset",
    "losematch", "winmatch", "tie",   "check", "propose", "accept", "buy",      "levelup", "panel"};

class Sounds {
 public:
  /// `device` must outlive it.
  explicit Sounds(SoundDevice& device);

  /// Loads every effect from `programFolder` + "/Sounds/" + name + ".wav". Until then nothing plays.
  void InitEffects(const std::string& programFolder);
  /// Plays one effect (in any case of letters) unless the player has muted its category.
  void PlayEffect(std::string_view name);
  /// Plays the file itself, past buffers and mute options: for the moment when the program is about to end.
  void PlayEffectOnce(std::string_view name);

  /// Whose mute options count; not owned, null before a player is loaded (then nothing is muted).
  void setPlayer(const clsPlayer* player) { player_ = player; }

 private:
  [[nodiscard]] bool Muted(const std::string& name) const;
  [[nodiscard]] std::string WavePath(std::string_view name) const;

  SoundDevice& device_;
  const clsPlayer* player_ = nullptr;
  std::string programFolder_;
  std::array<int, kSoundCount> buffers_{};  // the device's numbers, -1 for a wave that could not be loaded
  unsigned char turn_ = 1;                  // which of the two turn buffers plays next: number 2 - turn_
  bool ready_ = false;
};

}  // namespace kv
