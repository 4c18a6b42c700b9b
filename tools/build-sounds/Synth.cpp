#include "Synth.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kv::sound {
namespace {

constexpr double kHighest = 18000;  // hertz
constexpr double kRelease = 0.08;   // seconds in which a wave's end is let go, so that it does not click

std::size_t Samples(double seconds) {
  return static_cast<std::size_t>(std::lround(seconds * kRate));
}

double Seconds(std::size_t sample) {
  return static_cast<double>(sample) / kRate;
}

/// Two-pole filter with a band and a low output, stable while its frequency moves.
class Filter {
 public:
  void setFrequency(double hertz, double damping) {
    f_ = std::tan(kPi * std::clamp(hertz, 20.0, kHighest) / kRate);
    d_ = damping;
    g_ = 1 / (1 + f_ * (f_ + d_));
  }
  void Step(double in) {
    const double high = (in - (f_ + d_) * s1_ - s2_) * g_;
    band = f_ * high + s1_;
    s1_ = f_ * high + band;
    low = f_ * band + s2_;
    s2_ = f_ * band + low;
  }
  double band = 0;
  double low = 0;

 private:
  double f_ = 0, d_ = 1, g_ = 1, s1_ = 0, s2_ = 0;
};

/// An echo that feeds itself, losing its highs on each round.
Wave Comb(const Wave& in, std::size_t delay, double decay) {
  const double feedback = std::pow(0.001, Seconds(delay) / decay);
  Wave out(in.size());
  double dull = 0;
  for (std::size_t i = 0; i < in.size(); ++i) {
    const double back = i >= delay ? out[i - delay] : 0;
    dull += 0.65 * (back - dull);
    out[i] = in[i] + feedback * dull;
  }
  return out;
}

void AllPass(Wave& wave, std::size_t delay) {
  constexpr double kGain = 0.6;
  Wave line(delay);
  for (std::size_t i = 0; i < wave.size(); ++i) {
    double& cell = line[i % delay];
    const double out = cell - kGain * wave[i];
    cell = wave[i] + kGain * out;
    wave[i] = out;
  }
}

Wave Echo(const Wave& in, double size, double decay, std::size_t spread) {
  constexpr std::array<std::size_t, 6> kCombs = {1031, 1153, 1291, 1423, 1511, 1637};
  constexpr std::array<std::size_t, 2> kAllPasses = {229, 83};
  Wave sum(in.size());
  for (const std::size_t comb : kCombs) {
    const auto delay = static_cast<std::size_t>(std::lround(static_cast<double>(comb) * size)) + spread;
    const Wave part = Comb(in, delay, decay);
    for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += part[i] / kCombs.size();
  }
  for (const std::size_t delay : kAllPasses) AllPass(sum, delay + spread);
  HighPass(sum, 180);
  return sum;
}

}  // namespace

double Noise::Next() {
  state_ ^= state_ << 13U;
  state_ ^= state_ >> 17U;
  state_ ^= state_ << 5U;
  return static_cast<double>(state_) / 2147483648.0 - 1;
}

Wave Strike(double pitch, double seconds, std::span<const Partial> partials, double attack) {
  Wave wave(Samples(seconds));
  for (const Partial& partial : partials) {
    const double hertz = pitch * partial.ratio;
    if (hertz > kHighest) continue;
    for (std::size_t i = 0; i < wave.size(); ++i) {
      const double t = Seconds(i);
      wave[i] += partial.level * std::sin(2 * kPi * hertz * t) * std::exp(-t / partial.decay);
    }
  }
  Shape(wave, attack, 1e9);
  return wave;
}

Wave Glide(double from, double to, double seconds) {
  Wave wave(Samples(seconds));
  double phase = 0;
  for (std::size_t i = 0; i < wave.size(); ++i) {
    wave[i] = std::sin(phase);
    phase += 2 * kPi * from * std::pow(to / from, Seconds(i) / seconds) / kRate;
  }
  return wave;
}

Wave Brass(double from, double to, double seconds, int brightness, double decay) {
  Wave wave(Samples(seconds));
  double phase = 0;
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double t = Seconds(i);
    const double hertz = from * std::pow(to / from, t / seconds);
    for (int n = 1; n <= brightness && n * hertz < kHighest; ++n) {
      wave[i] += std::sin(n * phase) / n * std::exp(-t * (n - 1) / (decay * 3));
    }
    wave[i] *= std::exp(-t / decay);
    phase += 2 * kPi * hertz / kRate;
  }
  return wave;
}

Wave White(double seconds, std::uint32_t seed) {
  Noise noise(seed);
  Wave wave(Samples(seconds));
  for (double& sample : wave) sample = noise.Next();
  return wave;
}

void Shape(Wave& wave, double attack, double decay) {
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double t = Seconds(i);
    if (t < attack) {
      wave[i] *= 0.5 - 0.5 * std::cos(kPi * t / attack);
    } else {
      wave[i] *= std::exp(-(t - attack) / decay);
    }
  }
}

void Swell(Wave& wave, double peak) {
  const double length = static_cast<double>(wave.size());
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const double x = static_cast<double>(i) / length;
    const double rise = x < peak ? x / peak / 2 : 0.5 + (x - peak) / (1 - peak) / 2;
    wave[i] *= std::pow(std::sin(kPi * rise), 2);
  }
}

void SweepBand(Wave& wave, double from, double to, double width) {
  Filter filter;
  const double length = static_cast<double>(wave.size());
  for (std::size_t i = 0; i < wave.size(); ++i) {
    filter.setFrequency(from * std::pow(to / from, static_cast<double>(i) / length), width);
    filter.Step(wave[i]);
    wave[i] = filter.band;
  }
}

void LowPass(Wave& wave, double cutoff) {
  Filter filter;
  filter.setFrequency(cutoff, 1.414);
  for (double& sample : wave) {
    filter.Step(sample);
    sample = filter.low;
  }
}

void HighPass(Wave& wave, double cutoff) {
  Filter filter;
  filter.setFrequency(cutoff, 1.414);
  for (double& sample : wave) {
    filter.Step(sample);
    sample -= filter.low + 1.414 * filter.band;
  }
}

void Stereo::Add(const Wave& wave, double at, double gain, double pan) {
  const std::size_t start = Samples(at);
  if (left.size() < start + wave.size()) {
    left.resize(start + wave.size());
    right.resize(start + wave.size());
  }
  const double angle = (pan + 1) * kPi / 4;
  const double toLeft = gain * std::cos(angle) * std::sqrt(2.0);
  const double toRight = gain * std::sin(angle) * std::sqrt(2.0);
  const std::size_t release = std::min(Samples(kRelease), wave.size() / 4);
  for (std::size_t i = 0; i < wave.size(); ++i) {
    const std::size_t rest = wave.size() - 1 - i;
    const double fade =
        rest >= release
            ? 1
            : 0.5 - 0.5 * std::cos(kPi * static_cast<double>(rest) / static_cast<double>(release));
    left[start + i] += toLeft * fade * wave[i];
    right[start + i] += toRight * fade * wave[i];
  }
}

void Stereo::setSeconds(double seconds) {
  left.resize(Samples(seconds));
  right.resize(left.size());
}

void Room(Stereo& sound, double amount, double size, double decay) {
  constexpr std::size_t kSpread = 23;  // samples by which the right ear's room differs
  constexpr double kLopsided = 1.09;   // and it is that much larger, so that the tail surrounds the listener
  sound.setSeconds(Seconds(sound.left.size()) + decay);
  const Wave left = Echo(sound.left, size, decay, 0);
  const Wave right = Echo(sound.right, size * kLopsided, decay, kSpread);
  for (std::size_t i = 0; i < left.size(); ++i) {
    sound.left[i] += amount * left[i];
    sound.right[i] += amount * right[i];
  }
}

}  // namespace kv::sound
