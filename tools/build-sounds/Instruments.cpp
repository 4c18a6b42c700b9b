#include "Instruments.h"

#include <cmath>

namespace kv::sound {

double Pitch(double halfTones) {
  constexpr double kD5 = 587.3295;
  return kD5 * std::pow(2, halfTones / 12);
}

void Roughen(Wave& wave, double grainsPerSecond, std::uint32_t seed) {
  Wave grains = White(static_cast<double>(wave.size()) / kRate, seed);
  LowPass(grains, grainsPerSecond);
  const double lift = std::sqrt(kRate / grainsPerSecond) * 0.35;
  for (std::size_t i = 0; i < wave.size(); ++i) wave[i] *= std::abs(0.5 + lift * grains[i]);
}

Wave Burst(double seconds, double cutoffLow, double cutoffHigh, double decay, std::uint32_t seed) {
  Wave burst = White(seconds, seed);
  LowPass(burst, cutoffHigh);
  HighPass(burst, cutoffLow);
  Shape(burst, 0.0006, decay);
  return burst;
}

Wave Thump(double from, double to, double seconds, double decay) {
  Wave thump = Glide(from, to, seconds);
  Shape(thump, 0.0015, decay);
  return thump;
}

Wave Swish(double seconds, double from, double to, double width, double peak, std::uint32_t seed) {
  Wave swish = White(seconds, seed);
  SweepBand(swish, from, to, width);
  Swell(swish, peak);
  return swish;
}

void Chime(Stereo& sound, double halfTones, double at, double gain, double pan) {
  sound.Add(Strike(Pitch(halfTones), 1.6, kGlass, 0.003), at, gain, pan);
  Wave edge = Brass(Pitch(halfTones), Pitch(halfTones), 0.5, 8, 0.16);
  Shape(edge, 0.012, 1e9);
  LowPass(edge, 3200);
  sound.Add(edge, at, gain * 0.35, -pan);
}

void DarkChime(Stereo& sound, double halfTones, double at, double gain, double pan) {
  sound.Add(Strike(Pitch(halfTones), 1.7, kDarkGlass, 0.006), at, gain, pan);
  Wave edge = Brass(Pitch(halfTones - 12), Pitch(halfTones - 12), 0.6, 6, 0.22);
  Shape(edge, 0.02, 1e9);
  LowPass(edge, 1400);
  sound.Add(edge, at, gain * 0.35, -pan);
}

void Horn(Stereo& sound, double from, double to, double at, double seconds, double gain, double cutoff) {
  for (const double side : {-1.0, 1.0}) {
    const double detune = 0.05 * side;
    Wave horn = Brass(Pitch(from + detune), Pitch(to + detune), seconds, 12, seconds * 0.45);
    Shape(horn, 0.05, 1e9);
    LowPass(horn, cutoff);
    sound.Add(horn, at, gain, side * 0.6);
  }
}

void Drum(Stereo& sound, double pitch, double at, double gain) {
  constexpr std::array<Partial, 4> kSkin = {
      {{1.5, 0.5, 0.2}, {1.99, 0.35, 0.14}, {2.44, 0.2, 0.09}, {3.2, 0.1, 0.05}}};
  sound.Add(Thump(pitch * 1.25, pitch, 0.9, 0.28), at, gain);
  sound.Add(Strike(pitch, 0.7, kSkin, 0.002), at, gain * 0.7);
  sound.Add(Burst(0.06, 200, 2600, 0.012, 901), at, gain * 0.6);
}

void Cymbal(Stereo& sound, double at, double seconds, double peak, double gain, std::uint32_t seed) {
  for (const double side : {-1.0, 1.0}) {
    Wave noise = White(seconds, seed++);
    HighPass(noise, 5200);
    LowPass(noise, 12500);
    Shape(noise, seconds * peak, seconds * (1 - peak) * 0.3);
    sound.Add(noise, at, gain, side * 0.9);
  }
}

void Sparkle(Stereo& sound, std::span<const double> notes, double at, double step, double gain) {
  double side = -0.8;
  for (const double note : notes) {
    sound.Add(Strike(Pitch(note), 0.9, kGlass, 0.002), at, gain, side);
    at += step;
    gain *= 0.9;
    side = -side;
  }
}

}  // namespace kv::sound
