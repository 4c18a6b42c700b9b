// Sounds that take an effect's place: art/sounds/NAME.wav, .flac or .ogg. Every file there is either taken or
// a fault that is told; none is passed over in silence.
#pragma once

#include <map>
#include <string>

#include "Synth.h"

namespace kv::sound {

inline constexpr double kLongestArt = 10;  // seconds; the game's own last three at most

struct ArtSounds {
  std::map<std::string, Stereo> sounds;  // by the effect's name
  std::string fault;                     // what is wrong with a file, for people; empty when all are good
};

/// The sounds of an art folder. One that is not there holds none; a README and hidden files are no sounds.
[[nodiscard]] ArtSounds ReadArt(const std::string& folder);

}  // namespace kv::sound
