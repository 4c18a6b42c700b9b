// The last step of every effect: even loudness, no clipping, silent ends, and the file's bytes.
#pragma once

#include <string>

#include "Synth.h"

namespace kv::sound {

inline constexpr double kCeiling = -3.2;  // dBFS: no sample is louder

/// Loudness in LUFS of the loudest 0.4 seconds, weighted as the ear hears (ITU-R BS.1770's filter). A shorter
/// sound is measured with silence after it.
[[nodiscard]] double Loudness(const Stereo& sound);
/// The loudest sample in dBFS.
[[nodiscard]] double Peak(const Stereo& sound);
/// The centre of gravity of the spectrum in hertz.
[[nodiscard]] double SpectrumCentre(const Stereo& sound);

/// Removes rumble, fades both ends, and brings the sound to `loudness` LUFS under the ceiling by rounding off
/// single peaks. False when that would take more than rounding: then the effect itself must change.
[[nodiscard]] bool Master(Stereo& sound, double loudness, double fadeOut);

/// The file: 16-bit stereo PCM.
[[nodiscard]] std::string WaveBytes(const Stereo& sound);

}  // namespace kv::sound
