#include "Master.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>

namespace kv::sound {
namespace {

constexpr double kFadeIn = 0.001;    // seconds
constexpr double kTolerance = 0.25;  // dB by which the loudness may miss its aim
constexpr double kKnee = 0.6;        // of the ceiling: rounding off starts there

/// A filter of second order in the form that BS.1770 prints its coefficients for.
void Weigh(Wave& wave, const double (&b)[3], const double (&a)[2]) {
  double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
  for (double& sample : wave) {
    const double y = b[0] * sample + b[1] * x1 + b[2] * x2 - a[0] * y1 - a[1] * y2;
    x2 = x1;
    x1 = sample;
    y2 = y1;
    y1 = y;
    sample = y;
  }
}

/// The ear's weighting at 44.1 kHz: a shelf for the head, then a high-pass.
Wave EarWeighted(Wave wave) {
  Weigh(wave, {1.5308412300503478, -2.6509799951547297, 1.1690790799215869},
        {-1.6636551132560204, 0.7125954280732254});
  Weigh(wave, {1, -2, 1}, {-1.9891696736297957, 0.9891990357870394});
  return wave;
}

void Fade(Wave& wave, double fadeOut) {
  const auto in = static_cast<std::size_t>(kFadeIn * kRate);
  const auto out = std::min(static_cast<std::size_t>(fadeOut * kRate), wave.size());
  for (std::size_t i = 0; i < in && i < wave.size(); ++i) {
    wave[i] *= static_cast<double>(i) / static_cast<double>(in);
  }
  for (std::size_t i = 0; i < out; ++i) {
    const double x = static_cast<double>(i) / static_cast<double>(out);
    wave[wave.size() - 1 - i] *= 0.5 - 0.5 * std::cos(kPi * x);
  }
}

void RoundOff(Wave& wave, double ceiling) {
  const double knee = kKnee * ceiling;
  for (double& sample : wave) {
    const double size = std::abs(sample);
    if (size <= knee) continue;
    const double rounded = knee + (ceiling - knee) * std::tanh((size - knee) / (ceiling - knee));
    sample = std::copysign(rounded, sample);
  }
}

void Scale(Stereo& sound, double decibels) {
  const double gain = std::pow(10, decibels / 20);
  for (Wave* wave : {&sound.left, &sound.right}) {
    for (double& sample : *wave) sample *= gain;
  }
}

void Fourier(std::vector<std::complex<double>>& data) {
  const std::size_t n = data.size();
  for (std::size_t i = 1, j = 0; i < n; ++i) {
    std::size_t bit = n >> 1U;
    for (; (j & bit) != 0; bit >>= 1U) j ^= bit;
    j ^= bit;
    if (i < j) std::swap(data[i], data[j]);
  }
  for (std::size_t length = 2; length <= n; length <<= 1U) {
    const std::complex<double> step = std::polar(1.0, -2 * kPi / static_cast<double>(length));
    for (std::size_t i = 0; i < n; i += length) {
      std::complex<double> turn = 1;
      for (std::size_t k = 0; k < length / 2; ++k, turn *= step) {
        const std::complex<double> odd = data[i + k + length / 2] * turn;
        data[i + k + length / 2] = data[i + k] - odd;
        data[i + k] += odd;
      }
    }
  }
}

void Append(std::string& bytes, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
}

}  // namespace

double Loudness(const Stereo& sound) {
  constexpr auto kWindow = static_cast<std::size_t>(0.4 * kRate);
  constexpr double kOffset = -0.691;
  const Wave left = EarWeighted(sound.left);
  const Wave right = EarWeighted(sound.right);
  double sum = 0;
  double loudest = 1e-12;
  for (std::size_t i = 0; i < left.size(); ++i) {
    sum += left[i] * left[i] + right[i] * right[i];
    if (i >= kWindow) sum -= left[i - kWindow] * left[i - kWindow] + right[i - kWindow] * right[i - kWindow];
    loudest = std::max(loudest, sum / kWindow);
  }
  return kOffset + 10 * std::log10(loudest);
}

double Peak(const Stereo& sound) {
  double peak = 1e-6;
  for (const Wave* wave : {&sound.left, &sound.right}) {
    for (const double sample : *wave) peak = std::max(peak, std::abs(sample));
  }
  return 20 * std::log10(peak);
}

double SpectrumCentre(const Stereo& sound) {
  std::size_t size = 1;
  while (size < sound.left.size()) size <<= 1U;
  std::vector<std::complex<double>> data(size);
  for (std::size_t i = 0; i < sound.left.size(); ++i) data[i] = sound.left[i] + sound.right[i];
  Fourier(data);
  double weighted = 0;
  double total = 1e-12;
  for (std::size_t i = 0; i < size / 2; ++i) {
    const double power = std::norm(data[i]);
    weighted += power * static_cast<double>(i) * kRate / static_cast<double>(size);
    total += power;
  }
  return weighted / total;
}

bool Master(Stereo& sound, double loudness, double fadeOut) {
  constexpr double kRumble = 30;  // hertz
  constexpr int kRounds = 6;
  for (Wave* wave : {&sound.left, &sound.right}) {
    HighPass(*wave, kRumble);
    Fade(*wave, fadeOut);
  }
  for (int i = 0; i < kRounds; ++i) {
    Scale(sound, loudness - Loudness(sound));
    RoundOff(sound.left, std::pow(10, kCeiling / 20));
    RoundOff(sound.right, std::pow(10, kCeiling / 20));
  }
  return std::abs(Loudness(sound) - loudness) < kTolerance;
}

std::string WaveBytes(const Stereo& sound) {
  constexpr std::uint32_t kChannels = 2;
  constexpr std::uint32_t kFrame = 2 * kChannels;
  const auto size = static_cast<std::uint32_t>(sound.left.size()) * kFrame;
  std::string bytes = "RIFF";
  Append(bytes, 36 + size, 4);
  bytes += "WAVEfmt ";
  Append(bytes, 16, 4);
  Append(bytes, 1, 2);
  Append(bytes, kChannels, 2);
  Append(bytes, kRate, 4);
  Append(bytes, kRate * kFrame, 4);
  Append(bytes, kFrame, 2);
  Append(bytes, 16, 2);
  bytes += "data";
  Append(bytes, size, 4);
  for (std::size_t i = 0; i < sound.left.size(); ++i) {
    for (const double sample : {sound.left[i], sound.right[i]}) {
      Append(bytes, static_cast<std::uint32_t>(std::lround(sample * 32767)), 2);
    }
  }
  return bytes;
}

}  // namespace kv::sound
