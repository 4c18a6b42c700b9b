// The seventeen effects as the game names them: what each is made of, and how loud it is meant to be.
#pragma once

#include <span>

#include "Synth.h"

namespace kv::sound {

struct Effect {
  const char* name;
  Stereo (*make)();
  double loudness;  // LUFS of the loudest 0.4 seconds; the same within a mute category
  double fadeOut;   // seconds
};

[[nodiscard]] std::span<const Effect> Effects();

}  // namespace kv::sound
