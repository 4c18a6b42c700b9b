// The building blocks of the sound effects: oscillators, noise, filters, envelopes and a small room.
// Everything is computed from fixed numbers, so the same code always makes the same samples.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace kv::sound {

inline constexpr int kRate = 44100;  // samples a second
inline constexpr double kPi = 3.14159265358979323846;

/// One channel of samples, nominally within -1 to 1.
using Wave = std::vector<double>;

/// White noise from a small generator of our own: the library's may differ from system to system.
class Noise {
 public:
  explicit Noise(std::uint32_t seed) : state_(seed) {}
  /// From -1 to 1.
  [[nodiscard]] double Next();

 private:
  std::uint32_t state_;
};

/// A partial tone of a struck thing: its frequency as a multiple of the pitch, its level and how long
/// (seconds) it takes to die to a third.
struct Partial {
  double ratio;
  double level;
  double decay;
};

/// A struck body: the partials ring out over a short attack (seconds). Partials above hearing are left out.
[[nodiscard]] Wave Strike(double pitch, double seconds, std::span<const Partial> partials, double attack);
/// A sine whose pitch glides evenly (by ear) from one frequency to the other.
[[nodiscard]] Wave Glide(double from, double to, double seconds);
/// A bright, band-limited saw whose upper harmonics die first: `brightness` is the number of harmonics at the
/// start; `decay` in seconds.
[[nodiscard]] Wave Brass(double from, double to, double seconds, int brightness, double decay);
[[nodiscard]] Wave White(double seconds, std::uint32_t seed);

/// Rise over `attack` seconds, then fall to a third in every further `decay` seconds.
void Shape(Wave& wave, double attack, double decay);
/// Half a sine: swells and dies over the whole length; `peak` (0 to 1) is where it is loudest.
void Swell(Wave& wave, double peak);

/// A band around a frequency that moves from `from` to `to` hertz; `width` is the band's share of its centre.
void SweepBand(Wave& wave, double from, double to, double width);
void LowPass(Wave& wave, double cutoff);
void HighPass(Wave& wave, double cutoff);

/// Two channels that grow as things are laid into them.
struct Stereo {
  Wave left;
  Wave right;

  /// Lays a wave in at `at` seconds and lets its end go softly; `pan` from -1 (left) to 1 (right) with equal
  /// power.
  void Add(const Wave& wave, double at, double gain, double pan = 0);
  /// Sets the length, cutting or filling with silence.
  void setSeconds(double seconds);
};

/// A small room: `amount` of its echo is added; `size` (1 is a living room) stretches it, `decay` (seconds)
/// is the time of its echo to die away. The length grows by `decay`.
void Room(Stereo& sound, double amount, double size, double decay);

}  // namespace kv::sound
