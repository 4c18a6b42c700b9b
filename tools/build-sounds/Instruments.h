// What the effects are played on: struck bodies, noises and the two voices of the tunes.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "Synth.h"

namespace kv::sound {

// Struck bodies, from dry to ringing.
inline constexpr std::array<Partial, 3> kTick = {{{1, 1, 0.016}, {2.31, 0.6, 0.009}, {4.1, 0.4, 0.005}}};
inline constexpr std::array<Partial, 3> kSwitch = {{{1, 1, 0.024}, {2.7, 0.6, 0.014}, {6.1, 0.4, 0.006}}};
inline constexpr std::array<Partial, 3> kWood = {{{1, 1, 0.16}, {3.93, 0.3, 0.05}, {9.2, 0.1, 0.02}}};
inline constexpr std::array<Partial, 6> kGlass = {{{1, 1, 0.55},
                                                   {2.001, 0.45, 0.34},
                                                   {3.01, 0.2, 0.22},
                                                   {4.16, 0.12, 0.16},
                                                   {5.43, 0.08, 0.1},
                                                   {6.79, 0.05, 0.06}}};
inline constexpr std::array<Partial, 4> kDarkGlass = {
    {{1, 1, 0.6}, {2.002, 0.3, 0.3}, {2.99, 0.1, 0.18}, {0.5, 0.3, 0.7}}};
inline constexpr std::array<Partial, 6> kCoin = {{{1, 1, 0.16},
                                                  {1.47, 0.8, 0.11},
                                                  {2.09, 0.6, 0.08},
                                                  {2.56, 0.5, 0.06},
                                                  {3.39, 0.3, 0.04},
                                                  {4.08, 0.2, 0.03}}};

/// All tunes are in D; a note is given in half tones above D5. In hertz.
[[nodiscard]] double Pitch(double halfTones);

/// Paper rubs in grains, not evenly: roughens a noise by a slower noise.
void Roughen(Wave& wave, double grainsPerSecond, std::uint32_t seed);
/// A knock of noise between two frequencies.
[[nodiscard]] Wave Burst(double seconds, double cutoffLow, double cutoffHigh, double decay,
                         std::uint32_t seed);
/// The body of a blow: a low tone that sags.
[[nodiscard]] Wave Thump(double from, double to, double seconds, double decay);
/// Something passing by: a band of noise that moves and swells; see SweepBand and Swell.
[[nodiscard]] Wave Swish(double seconds, double from, double to, double width, double peak,
                         std::uint32_t seed);

/// The voice of what goes well: glass with a short brass edge, so that a note speaks at once and then rings.
void Chime(Stereo& sound, double halfTones, double at, double gain, double pan);
/// The voice of what goes wrong: the same, duller and with a hum below it.
void DarkChime(Stereo& sound, double halfTones, double at, double gain, double pan);
/// A held note of two detuned brasses, one an ear, that may slide to another note.
void Horn(Stereo& sound, double from, double to, double at, double seconds, double gain, double cutoff);

/// A large drum: a tone that sags, its skin's overtones and the stick.
void Drum(Stereo& sound, double pitch, double at, double gain);
/// Metal brushed by a stick: noise on both ears, each its own, that swells to `peak` (0 to 1 of its length).
void Cymbal(Stereo& sound, double at, double seconds, double peak, double gain, std::uint32_t seed);
/// Small high bells, left and right in turn, that die away; notes in half tones above D5.
void Sparkle(Stereo& sound, std::span<const double> notes, double at, double step, double gain);

}  // namespace kv::sound
