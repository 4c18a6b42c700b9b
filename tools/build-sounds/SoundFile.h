// Sound files of the usual kinds, as samples in the form the game ships: 44.1 kHz, two channels. It opens no
// device.
#pragma once

#include <string>

#include "Synth.h"

namespace kv::sound {

struct SoundFile {
  Stereo sound;
  std::string fault;  // why it cannot be read; empty when it could
};

/// A WAV, FLAC or OGG file, told by what it holds and not by its name.
[[nodiscard]] SoundFile ReadSound(const std::string& path);

}  // namespace kv::sound
